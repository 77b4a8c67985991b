#!/usr/bin/env bash
# debian.sh BUILD SCRATCH VERSION: makes the Debian packages and installs them into SCRATCH/tree, with
# the packages of this machine counted as installed there. Leaves them installed for the tests that use
# them. 77 where there is no dpkg.
set -euo pipefail
build=$1 scratch=$2 version=$3
root="$scratch/tree"
packages="$(dirname "$0")/../../scripts/package.sh"

fail() {
  echo "$*" >&2
  exit 1
}
for tool in dpkg-deb dpkg-shlibdeps fakeroot; do
  command -v "$tool" >/dev/null || {
    echo "skipped: there is no $tool"
    exit 77
  }
done

rm -rf "$scratch"
mkdir -p "$root/var/lib/dpkg/"{info,updates,triggers}
"$packages" --from "$build" "$scratch/packages"
runtime=$(echo "$scratch"/packages/libvxmfcemu1_"$version"_*.deb)
development=$(echo "$scratch"/packages/libvxmfcemu-dev_"$version"_*.deb)

# What is already there meets the dependencies, if it does; but our own packages are not.
awk -v RS= -v ORS='\n\n' '!/^Package: libvxmfcemu/' /var/lib/dpkg/status >"$root/var/lib/dpkg/status"
for list in /var/lib/dpkg/info/*.list; do
  [[ $list = */libvxmfcemu* ]] || : >"$root/var/lib/dpkg/info/${list##*/}"
done
# The package's script renews the loader's cache; that of this machine is left alone.
mkdir "$scratch/bin"
printf '#!/bin/sh\necho called >>"%s"\n' "$scratch/ldconfig.log" >"$scratch/bin/ldconfig"
chmod +x "$scratch/bin/ldconfig"
package() {
  PATH="$scratch/bin:/usr/sbin:/sbin:$PATH" fakeroot dpkg --root="$root" --force-not-root --force-script-chrootless --log=/dev/null "$@"
}

if package --install "$development" >"$scratch/alone.log" 2>&1; then
  fail "the development package does without the library's"
fi
grep -q "depends on libvxmfcemu1 (= $version)" "$scratch/alone.log" || {
  cat "$scratch/alone.log" >&2
  fail "the development package does not ask for the library's of its version"
}
package --purge libvxmfcemu-dev >/dev/null 2>&1
package --install "$runtime" "$development" >"$scratch/install.log" 2>&1 || {
  cat "$scratch/install.log" >&2
  fail "the packages cannot be installed"
}
[ -s "$scratch/ldconfig.log" ] || fail "the loader is not told of the library"

# Each file in the package of those who need it.
listed() { package --listfiles "$1" | sort; }
run_time=$(listed libvxmfcemu1 | grep -E '\.so|\.h$|\.cmake$|\.pc$')
wrong=$(grep -vE '/libVx(MFCEmu|CustomUI)\.so\.[0-9.]+$' <<<"$run_time" || true)
[ -z "$wrong" ] || fail "not needed to run programs:"$'\n'"$wrong"
grep -q "/libVxMFCEmu.so.1$" <<<"$run_time" || fail "no libVxMFCEmu.so.1"
wrong=$(listed libvxmfcemu-dev | grep -E '\.so\.' || true)
[ -z "$wrong" ] || fail "needed to run programs:"$'\n'"$wrong"

depends=$(dpkg-deb --field "$runtime" Depends)
for library in libqt5core5a libqt5widgets5 libx11-6 libc6; do
  grep -q "$library" <<<"$depends" || fail "libvxmfcemu1 does not depend on $library: $depends"
done
