#!/usr/bin/env bash
# symbols.sh LIBDIR: the installed library's name, and that it exports its interface and no more.
set -euo pipefail
library="$1/libVxMFCEmu.so"

# Helpers of vx::detail that code in public headers calls, and that are exported for it.
exported_helpers=('vx::detail::'{resizeBlock,grownCapacity,addCounts,hashText,serializeBytes,serializeUnits,throwBadClass}'('
  'vx::detail::HashTable::' 'vx::detail::LinkChain::')

fail() {
  echo "$*" >&2
  exit 1
}

soname=$(readelf -d "$library" | sed -n 's/.*SONAME.*\[\(.*\)\]/\1/p')
[ "$soname" = libVxMFCEmu.so.1 ] || fail "soname is '$soname'"
[ -e "$1/$soname" ] || fail "$soname is not installed"
# shellcheck disable=SC2016 # the loader expands it
if readelf -d "$library" | grep -E 'R(UN)?PATH' | grep -vF '[$ORIGIN]'; then
  fail "the run path names a folder of the build"
fi

exports=$(nm -DC --defined-only "$library" | cut -d' ' -f3-)
for name in 'CObject_E::Attach(' 'vtable for CCmdTarget_E' 'g_mapCreateMethod' \
  'g_mapVxHandle' 'EnterCriticalSection_E('; do
  grep -qF "$name" <<<"$exports" || fail "not exported: $name"
done
helpers=$(grep -E '^((vtable|typeinfo|typeinfo name) for )?vx::' <<<"$exports" || true)
for name in "${exported_helpers[@]}"; do
  helpers=$(grep -vF "$name" <<<"$helpers" || true)
done
[ -z "$helpers" ] || fail "exported by mistake:"$'\n'"$helpers"

# A unique symbol would keep the library in memory after dlclose.
unique=$(nm -DC --defined-only "$library" | grep ' u ' || true)
[ -z "$unique" ] || fail "unique symbols:"$'\n'"$unique"
