#!/usr/bin/env bash
# Checks the form of all tracked sources and looks for faults in those of the library.
#   scripts/lint.sh [source files for clang-tidy; all of the library's without]
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

scripts/setup.sh --lint

git ls-files -z -- '*.h' '*.cpp' | xargs -0 -r clang-format --dry-run -Werror

# clang-tidy wants the flags of its own compiler, and no headers precompiled by another.
mkdir -p build
cmake -S . -B build/lint -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >build/lint-configure.log 2>&1 || {
  cat build/lint-configure.log >&2
  exit 1
}
cmake --build build/lint --target VxMFCEmu_autogen >/dev/null

if [ $# -gt 0 ]; then
  sources=("$@")
else
  mapfile -t sources < <(git ls-files -- 'text/*.cpp' 'sys/*.cpp' 'core/*.cpp' 'coll/*.cpp' \
    'wnd/*.cpp' 'gdi/*.cpp' 'dlg/*.cpp' 'ctrl/*.cpp')
fi
# The count of what its headers would have to say is no news.
printf '%s\0' "${sources[@]}" | xargs -0 -r -n 1 -P "$(nproc)" clang-tidy -p build/lint --quiet \
  2> >(grep -vE '^[0-9]+ warnings? generated' >&2 || true)
echo "lint: clean"
