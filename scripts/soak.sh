#!/usr/bin/env bash
# Builds the demo and lets the host run with its plug-ins under random keys, clicks and drags.
#   scripts/soak.sh [seconds: 600] [seed]
# Fails when it crashes, says anything on standard error, or keeps growing. The seed is printed; with
# it a run sees the same input again.
# shellcheck source=scripts/common.sh
source "$(dirname "$0")/common.sh"

seconds=${1:-600}
seed=${2:-$RANDOM}

scripts/setup.sh
build release
test_environment
# Real input needs an X server, whatever platform was asked for.
unset QT_QPA_PLATFORM
with_display build/release/bin/vxsoak --seconds "$seconds" --seed "$seed" \
  --host build/release/bin/vxdemo_host \
  --load build/release/lib/libVxDemoPlugin.so --load build/release/lib/libVxSoakPlugin.so
