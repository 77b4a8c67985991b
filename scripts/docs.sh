#!/usr/bin/env bash
# Builds the API reference from the public headers. Fails when a public name is undocumented or a
# comment is wrong.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

scripts/setup.sh --docs

VXMFC_VERSION=$(sed -nE 's/^project\(VxMFCEmu VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
VXMFC_REFERENCE=build/reference
export VXMFC_VERSION VXMFC_REFERENCE

rm -rf "$VXMFC_REFERENCE"
mkdir -p "$VXMFC_REFERENCE"
doxygen docs/Doxyfile 2>"$VXMFC_REFERENCE/warnings.txt" || {
  # A name that is declared in many places is told of for each of them.
  sed "s|^$PWD/||" "$VXMFC_REFERENCE/warnings.txt" | sort -u >&2
  exit 1
}
echo "docs: $VXMFC_REFERENCE/html/index.html"
