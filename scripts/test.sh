#!/usr/bin/env bash
# Builds everything and runs all tests on a private X server.
#   scripts/test.sh [--asan | --tsan] [arguments for ctest]
# With QT_QPA_PLATFORM=offscreen there is no X server, and only the X11 tests are skipped.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

preset=release
case "${1-}" in
  --asan | --tsan)
    preset=${1#--}
    shift
    ;;
esac

scripts/setup.sh
build "$preset"
test_environment

suppressions="$PWD/scripts/sanitizers"
export ASAN_OPTIONS="detect_leaks=1:detect_stack_use_after_return=1"
export LSAN_OPTIONS="suppressions=$suppressions/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export TSAN_OPTIONS="suppressions=$suppressions/tsan.supp:ignore_noninstrumented_modules=1:second_deadlock_stack=1"

with_display ctest --test-dir "build/$preset" --output-on-failure --no-tests=error "$@"
