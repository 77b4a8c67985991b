# shellcheck shell=bash
# What the scripts share. To be sourced; leaves the caller in the root of the project.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."

# What is not in the cache need not be preprocessed twice: the compiler lists what it has read.
export CCACHE_DEPEND=1

# build PRESET: configures and builds build/PRESET. Quiet while all is well.
build() {
  local log="build/$1/configure.log"
  mkdir -p "build/$1"
  cmake --preset "$1" >"$log" 2>&1 || {
    cat "$log" >&2
    return 1
  }
  cmake --build --preset "$1"
}

# test_environment: settings under which a run gives the same result on every machine.
test_environment() {
  export LC_ALL=C.UTF-8
  # Input methods and desktop styles of the developer's session stay out.
  unset QT_IM_MODULE XMODIFIERS QT_STYLE_OVERRIDE QT_SCALE_FACTOR QT_PLUGIN_PATH
  unset SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS
  export QT_QPA_PLATFORMTHEME="" QT_AUTO_SCREEN_SCALE_FACTOR=0
}

# with_display COMMAND...: runs the command on the xcb platform under an X server of its own, or
# without any display when QT_QPA_PLATFORM is "offscreen". Returns the command's exit code.
with_display() (
  if [ "${QT_QPA_PLATFORM-}" = offscreen ]; then
    unset DISPLAY WAYLAND_DISPLAY
    "$@"
    return
  fi

  scratch=$(mktemp -d)
  server=
  # shellcheck disable=SC2317
  stop_display() {
    [ -z "$server" ] || { kill "$server" && wait "$server"; } 2>/dev/null || true
    rm -rf "$scratch"
  }
  trap stop_display EXIT
  trap 'exit 130' INT TERM

  mkfifo "$scratch/number"
  # Without -noreset the server would start over between two tests, and the next might meet it then.
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset \
    3>"$scratch/number" 2>"$scratch/log" &
  server=$!
  number=
  read -r -t 30 number <"$scratch/number" || true
  if [ -z "$number" ]; then
    echo "Xvfb did not start:" >&2
    cat "$scratch/log" >&2
    return 1
  fi

  unset WAYLAND_DISPLAY XAUTHORITY
  export DISPLAY=":$number" QT_QPA_PLATFORM=xcb
  "$@"
)
