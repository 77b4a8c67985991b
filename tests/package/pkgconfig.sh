#!/usr/bin/env bash
# pkgconfig.sh LIBDIR SOURCE PROGRAM COMPILER [FLAGS...]: builds and runs a program through pkg-config.
set -euo pipefail
libdir=$1 source=$2 program=$3
shift 3

export PKG_CONFIG_PATH="$libdir/pkgconfig${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}"
version=$(pkg-config --modversion VxMFCEmu)
read -ra flags < <(pkg-config --cflags --libs VxMFCEmu)

rm -f "$program"
"$@" "-DPACKAGE_VERSION=\"$version\"" "$source" -o "$program" "${flags[@]}" "-Wl,-rpath,$libdir"
"$program"
