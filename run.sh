#!/usr/bin/env bash
# Builds the programs (if needed) and runs the main job: reading a radio's channel plan and
# settings, here from the simulated radio. Arguments, when given, replace the job:
# ./run.sh --lang en read --port sim -o plan.qzv, ./run.sh show plan.qzv, ...
set -euo pipefail
cd "$(dirname "$0")"
scripts/deps.sh

build=build
scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF

if [ $# -eq 0 ]; then
    set -- read --port sim
fi
exec "$build/app/radioprog-cli" "$@"
