#!/usr/bin/env bash
# Saves screenshots of the desktop program, run under Xvfb, into OUTDIR:
# the splash, the main window in Chinese and English, a read in progress, the window after a
# read from the simulated radio, an open code picker, the window resized, and the engineering
# windows (crystal, registers, hardware, volume, audio player) after a read.
# usage: scripts/screenshots.sh OUTDIR
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -eq 1 ] || { echo "usage: $0 OUTDIR" >&2; exit 2; }
out=$(mkdir -p "$1" && cd "$1" && pwd)
scripts/deps.sh

build=build-screens
if [ ! -f "$build/build.ninja" ]; then
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
fi
log=$(mktemp)
if ! cmake --build "$build" --target mainwindow_screenshots -- -j2 >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    exit 1
fi
rm -f "$log"

unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
xvfb-run -a -s "-screen 0 1600x1000x24 -dpi 96" "$build/tests/mainwindow/mainwindow_screenshots" "$out"
