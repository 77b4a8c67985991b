#!/usr/bin/env bash
# Makes the Debian packages libvxmfcemu1 and libvxmfcemu-dev.
#   scripts/package.sh                    builds the release and leaves them in build/packages/
#   scripts/package.sh --from BUILD OUT   takes what is built in BUILD and leaves them in OUT
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

if [ "${1-}" = --from ]; then
  build=$2
  out=$3
else
  build=build/release
  out=build/packages
  scripts/setup.sh
  build release
fi

mkdir -p "$out"
out=$(realpath "$out")
rm -f "$out"/*.deb
# Files in a package are root's and open to all, whoever makes it.
umask 022
cpack --config "$build/CPackConfig.cmake" -B "$out" >"$out/cpack.log" 2>&1 || {
  cat "$out/cpack.log" >&2
  exit 1
}
rm -rf "$out/_CPack_Packages"
ls "$out"/*.deb
