#!/usr/bin/env bash
# Builds the programs (if needed) and runs the main job: the desktop program on the simulated
# radio. Without a display it says so and reads the simulated radio from the command line.
# Leading global options keep the main job (./run.sh --lang en); other arguments replace it
# with a command-line job: ./run.sh read --port sim -o plan.qzv, ./run.sh show plan.qzv, ...
set -euo pipefail
cd "$(dirname "$0")"
scripts/deps.sh

build=build
scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF

globals=()
while [ $# -gt 0 ]; do
    case "$1" in
        --lang|--config)
            [ $# -ge 2 ] || { echo "run.sh: $1 needs a value" >&2; exit 2; }
            globals+=("$1" "$2"); shift 2 ;;
        --lang=*|--config=*)
            globals+=("$1"); shift ;;
        *) break ;;
    esac
done

if [ $# -gt 0 ]; then
    exec "$build/app/radioprog-cli" "${globals[@]}" "$@"
fi
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$build/app/radioprog" --simulator "${globals[@]}"
fi
echo "run.sh: no display (DISPLAY and WAYLAND_DISPLAY are unset); reading the simulated radio" \
     "from the command line instead" >&2
exec "$build/app/radioprog-cli" "${globals[@]}" read --port sim
