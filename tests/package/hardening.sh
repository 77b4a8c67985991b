#!/usr/bin/env bash
# hardening.sh LIBDIR [--fortified]: what an attacker could overwrite in the installed libraries is
# guarded or read-only.
set -euo pipefail

fail() {
  echo "$*" >&2
  exit 1
}

for library in "$1/libVxMFCEmu.so" "$1"/libVxCustomUI.so.?; do
  [ -e "$library" ] || continue # the stand-in, where it was built
  segments=$(readelf -lW "$library")
  dynamic=$(readelf -dW "$library")
  grep -q GNU_RELRO <<<"$segments" || fail "$library: no read-only relocations"
  grep -qE '\(FLAGS\).*BIND_NOW|\(FLAGS_1\).*NOW' <<<"$dynamic" || fail "$library: functions are bound late"
  grep -qE 'GNU_STACK .* RW ' <<<"$segments" || fail "$library: the stack is executable"
  ! grep -q TEXTREL <<<"$dynamic" || fail "$library: code is relocated"
done

imports=$(nm -D --undefined-only "$1/libVxMFCEmu.so")
grep -q __stack_chk_fail <<<"$imports" || fail "no stack guards"
if [ "${2-}" = --fortified ]; then
  grep -qE ' __(mem|str|wcs|wmem|v?sn?printf|v?swprintf|fdelt|readlink|read)[a-z]*_chk' <<<"$imports" ||
    fail "no checked functions of the C library"
fi
