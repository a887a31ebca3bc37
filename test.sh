#!/usr/bin/env bash
# Builds everything with AddressSanitizer + UndefinedBehaviorSanitizer and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
scripts/deps.sh

build=build-asan
scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=Debug -DRADIOPROG_SANITIZE=ON

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$build" --output-on-failure -j"$(nproc)" "$@"

# The Debian package: built in its own Release folder and checked (contents, lintian, a run of
# radioprog-cli from the unpacked package).
scripts/package.sh
