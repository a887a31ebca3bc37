#!/usr/bin/env bash
# Builds the programs (if needed) and runs the main job.
set -euo pipefail
cd "$(dirname "$0")"
scripts/deps.sh

build=build
scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF

exec "$build/app/radioprog-cli" show "$@"
