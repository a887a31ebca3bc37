#!/usr/bin/env bash
# Configures (once) and builds one build folder; prints the compiler's output only when it fails.
# usage: scripts/build.sh DIR [cmake options...]
set -euo pipefail
build=$1; shift
if [ ! -f "$build/build.ninja" ]; then
    cmake -S . -B "$build" -G Ninja "$@" >/dev/null
fi
log=$(mktemp)
if ! cmake --build "$build" -- -j"$(nproc)" >"$log" 2>&1; then
    grep -v -E '^\[[0-9]+/[0-9]+\] ' "$log" >&2
    rm -f "$log"
    exit 1
fi
grep -i -E 'warning:' "$log" >&2 || true
rm -f "$log"
