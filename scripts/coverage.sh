#!/usr/bin/env bash
# Runs all tests and reports which part of the library's lines they ran, folder by folder.
#   scripts/coverage.sh [--lines] [folders]
# --lines also names the lines that were not run, of all folders or of those given.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

scripts/setup.sh
build coverage
test_environment

find build/coverage -name '*.gcda' -delete # what an earlier run counted
with_display ctest --test-dir build/coverage --output-on-failure --no-tests=error \
  -E '^(headers|soak|package_.*)$' >build/coverage/tests.log || {
  cat build/coverage/tests.log >&2
  exit 1
}
scripts/coverage_report.py build/coverage "$@"
