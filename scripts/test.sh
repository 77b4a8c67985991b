#!/usr/bin/env bash
# Builds everything and runs all tests on a private X server.
#   scripts/test.sh [--asan | --tsan | --sanitizers | --clang] [arguments for ctest]
# --asan is for addresses, leaks and undefined behaviour, --tsan for threads, --sanitizers for all of
# them one after the other; --clang builds the release with the second compiler.
# With QT_QPA_PLATFORM=offscreen there is no X server, and only the X11 tests are skipped.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

presets=(release)
setup=()
case "${1-}" in
  --asan | --tsan) presets=("${1#--}") ;;
  --sanitizers) presets=(asan tsan) ;;
  --clang)
    presets=(clang)
    setup=(--clang)
    ;;
  *) set -- '' "$@" ;;
esac
shift

scripts/setup.sh "${setup[@]}"
test_environment

suppressions="$PWD/scripts/sanitizers"
export ASAN_OPTIONS="detect_leaks=1:detect_stack_use_after_return=1"
export LSAN_OPTIONS="suppressions=$suppressions/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export TSAN_OPTIONS="suppressions=$suppressions/tsan.supp:ignore_noninstrumented_modules=1:second_deadlock_stack=1"

failed=()
for preset in "${presets[@]}"; do
  build "$preset"
  with_display ctest --test-dir "build/$preset" --output-on-failure --no-tests=error "$@" ||
    failed+=("$preset")
done
[ "${#failed[@]}" -eq 0 ] || {
  echo "test: failures under: ${failed[*]}" >&2
  exit 1
}
