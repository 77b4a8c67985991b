#!/usr/bin/env bash
# Compares what the library exports with the list that is checked in.
#   scripts/symbols.sh [--write] [--library FILE]
# Without options it builds the release and says what was added and removed. --write renews the list,
# tests/package/symbols.txt. --library takes that file and builds nothing.
# What a compiler may emit or leave out as it likes, instances of templates, is no part of the list.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

list=tests/package/symbols.txt
library=
write=
while [ $# -gt 0 ]; do
  case "$1" in
    --write) write=yes ;;
    --library)
      library=$2
      shift
      ;;
    *)
      echo "usage: scripts/symbols.sh [--write] [--library FILE]" >&2
      exit 2
      ;;
  esac
  shift
done
if [ -z "$library" ]; then
  scripts/setup.sh
  build release
  library=build/release/lib/libVxMFCEmu.so
fi

symbols() {
  nm -D --defined-only --demangle "$1" | awk '
    { kind = $2; sub(/^[^ ]+ [^ ]+ /, ""); head = $0; sub(/\(.*/, "", head) }
    kind ~ /[WwVv]/ && head ~ /<|^(.* for )?(std|__gnu_cxx)::/ { next }
    $0 !~ /^(__bss_start|_edata|_end)$/' | LC_ALL=C sort -u
}

# lines PREFIX LINES
lines() {
  while IFS= read -r line; do echo "$1$line"; done <<<"$2"
}

exported=$(symbols "$library")
if [ -n "$write" ]; then
  printf '%s\n' "$exported" >"$list"
  echo "symbols: $(wc -l <"$list") in $list"
  exit 0
fi

listed=$(LC_ALL=C sort -u "$list") # a merge may have mixed them up
added=$(LC_ALL=C comm -13 <(echo "$listed") <(echo "$exported"))
removed=$(LC_ALL=C comm -23 <(echo "$listed") <(echo "$exported"))
if [ -n "$added" ]; then
  echo "exported, but not in $list:"
  lines '  + ' "$added"
fi
if [ -n "$removed" ]; then
  echo "in $list, but no longer exported; programs that use it break:"
  lines '  - ' "$removed"
fi
if [ -n "$added$removed" ]; then
  echo "When this is meant, scripts/symbols.sh --write renews the list."
  exit 1
fi
