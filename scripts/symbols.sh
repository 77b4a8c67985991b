#!/usr/bin/env bash
# Compares what the library exports with the list that is checked in.
#   scripts/symbols.sh                     builds the release and says what was added and removed
#   scripts/symbols.sh --write             renews the list, tests/package/symbols.txt
#   scripts/symbols.sh --library FILE      compares that file, without building
# What a compiler may emit or leave out as it likes, instances of templates, is no part of the list.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

list=tests/package/symbols.txt
library=build/release/lib/libVxMFCEmu.so
write=
case "${1-}" in
  '') ;;
  --write) write=yes ;;
  --library) library=$2 ;;
  *)
    echo "usage: scripts/symbols.sh [--write | --library FILE]" >&2
    exit 2
    ;;
esac
if [ "${1-}" != --library ]; then
  scripts/setup.sh
  build release
fi

symbols() {
  nm -D --defined-only --demangle "$1" | awk '
    { kind = $2; sub(/^[^ ]+ [^ ]+ /, ""); head = $0; sub(/\(.*/, "", head) }
    kind ~ /[WwVv]/ && head ~ /<|^(.* for )?(std|__gnu_cxx)::/ { next }
    { print }' | LC_ALL=C sort -u
}

exported=$(symbols "$library")
if [ -n "$write" ]; then
  printf '%s\n' "$exported" >"$list"
  echo "symbols: $(wc -l <"$list") in $list"
  exit 0
fi

added=$(LC_ALL=C comm -13 "$list" - <<<"$exported")
removed=$(LC_ALL=C comm -23 "$list" - <<<"$exported")
if [ -n "$added" ]; then
  echo "exported, but not in $list:"
  sed 's/^/  + /' <<<"$added"
fi
if [ -n "$removed" ]; then
  echo "in $list, but no longer exported; programs that use it break:"
  sed 's/^/  - /' <<<"$removed"
fi
if [ -n "$added$removed" ]; then
  echo "When this is meant, scripts/symbols.sh --write renews the list."
  exit 1
fi
