#!/usr/bin/env bash
# Measures every bench binary on Xvfb and offscreen, and prints each row beside its raw baseline.
#   scripts/bench.sh [--write] [regular expression of row names]
# --write puts the table into docs/benchmarks.md as well.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

write=()
if [ "${1-}" = --write ]; then
  write=(--write docs/benchmarks.md)
  shift
fi
filter=${1:-.}

scripts/setup.sh
build release
test_environment

results=build/release/bench-results
rm -rf "$results"

# measure PLATFORM: one file of results for each binary.
measure() {
  local platform=$1 binary result
  mkdir -p "$results/$platform"
  for binary in build/release/bin/*_bench; do
    [ -x "$binary" ] || continue
    result="$results/$platform/${binary##*/}"
    echo "$platform: ${binary##*/}" >&2
    # Many short repetitions in mixed order: the fastest of each row is one without a slow moment of
    # the machine.
    "$binary" --benchmark_filter="$filter" --benchmark_min_time=0.02 --benchmark_repetitions=15 \
      --benchmark_enable_random_interleaving=true \
      --benchmark_out="$result.json" --benchmark_out_format=json >"$result.log" 2>&1 || {
      cat "$result.log" >&2
      return 1
    }
  done
}

QT_QPA_PLATFORM=xcb with_display measure xcb
QT_QPA_PLATFORM=offscreen with_display measure offscreen
scripts/bench_table.py "$results" "${write[@]}"
