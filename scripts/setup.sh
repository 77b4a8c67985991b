#!/usr/bin/env bash
# Installs the Debian packages that are missing; says and does nothing where all are there.
#   scripts/setup.sh           what building, testing and measuring need
#   scripts/setup.sh --lint    what scripts/lint.sh needs as well
#   scripts/setup.sh --fuzz    what scripts/fuzz.sh needs as well
#   scripts/setup.sh --clang   what scripts/test.sh --clang needs as well
#   scripts/setup.sh --docs    what scripts/docs.sh needs, and no more
set -euo pipefail

packages=(
  ccache
  cmake
  dpkg-dev
  fakeroot
  file
  fonts-dejavu-core
  g++
  git
  libbenchmark-dev
  libgmock-dev
  libgtest-dev
  libqt5gui5
  libx11-dev
  libxtst-dev
  locales
  ninja-build
  pkg-config
  python3
  qtbase5-dev
  qtbase5-private-dev
  qttools5-dev
  xauth
  xvfb
)
lint_packages=(
  clang
  clang-format
  clang-tidy
)
clang_packages=(
  clang
)
fuzz_packages=(
  clang
  libclang-rt-dev
)
docs_packages=(
  doxygen
)

case "${1-}" in
  '') ;;
  --lint) packages+=("${lint_packages[@]}") ;;
  --clang) packages+=("${clang_packages[@]}") ;;
  --fuzz) packages+=("${fuzz_packages[@]}") ;;
  --docs) packages=("${docs_packages[@]}") ;;
  *)
    echo "usage: scripts/setup.sh [--lint | --fuzz | --clang | --docs]" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null; then
  echo "setup: not a Debian system; install the equivalents of: ${packages[*]}" >&2
  exit 0
fi

# dpkg-query fails when it does not know one of the names, and lists the rest all the same.
installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for package in "${packages[@]}"; do
  grep -qxF "$package installed" <<<"$installed" || missing+=("$package")
done
[ "${#missing[@]}" -eq 0 ] && exit 0

as_root=(env DEBIAN_FRONTEND=noninteractive)
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "setup: run as root or with sudo: apt-get install ${missing[*]}" >&2
    exit 1
  }
  as_root=(sudo "${as_root[@]}")
fi

install() {
  "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

echo "setup: installing ${missing[*]}"
# The package lists may be absent or older than the mirror; then they are fetched first.
if ! install 2>/dev/null; then
  "${as_root[@]}" apt-get update -qq
  install
fi
