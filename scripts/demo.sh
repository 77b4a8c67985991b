#!/usr/bin/env bash
# Builds and shows the demo: a host program that loads a plug-in written against this library.
# Without a display it is driven with real keys and clicks under Xvfb, what arrived is checked, and
# pictures are left in build/demo*.png.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

scripts/setup.sh
build release

host=build/release/bin/vxdemo_host
plugin=build/release/lib/libVxDemoPlugin.so

# shellcheck disable=SC2031 # with_display sets them for its command only
if [ -n "${DISPLAY-}" ] && [ "${QT_QPA_PLATFORM-}" != offscreen ]; then
  exec "$host" --load "$plugin" "$@"
fi

# Real input needs an X server, whatever platform was asked for.
unset QT_QPA_PLATFORM
test_environment
with_display build/release/bin/vxdemo_driver --host "$host" --load "$plugin" \
  --report build/demo-report.txt --screenshot build/demo.png
echo "pictures: build/demo*.png"
