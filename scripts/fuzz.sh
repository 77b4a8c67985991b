#!/usr/bin/env bash
# Builds the fuzz targets with clang and lets each look for faults.
#   scripts/fuzz.sh [seconds for each target: 60] [targets: all]
# Starts from fuzz/corpus/<target>/. An input that shows a fault is left in build/fuzz/findings/.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

seconds=${1:-60}
shift || true

scripts/setup.sh --fuzz
build fuzz
test_environment

scratch=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
trap 'rm -rf "$scratch"' EXIT
# What the targets write, settings of the user among it, is thrown away.
export TMPDIR="$scratch" HOME="$scratch" XDG_CONFIG_HOME="$scratch"
export ASAN_OPTIONS="detect_leaks=1:detect_stack_use_after_return=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/sanitizers/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

if [ $# -eq 0 ]; then
  set -- build/fuzz/fuzzers/*_fuzz
  set -- "${@##*/}"
  set -- "${@%_fuzz}"
fi
findings=build/fuzz/findings
mkdir -p "$findings"
failed=()
for target in "$@"; do
  log="build/fuzz/$target.log"
  mkdir -p "build/fuzz/corpus/$target" # grows from run to run
  echo "fuzz: $target, $seconds s"
  # Leaks are looked for at the end alone: after each input, what Qt remembers would be in the way.
  "build/fuzz/fuzzers/${target}_fuzz" -max_total_time="$seconds" -max_len=4096 -timeout=10 -detect_leaks=0 \
    -artifact_prefix="$findings/$target-" "build/fuzz/corpus/$target" "fuzz/corpus/$target" \
    >"$log" 2>&1 || {
    failed+=("$target")
    tail -n 60 "$log" >&2
    continue
  }
  tail -n 1 "$log"
done
[ "${#failed[@]}" -eq 0 ] || {
  echo "fuzz: faults found by: ${failed[*]}" >&2
  exit 1
}
