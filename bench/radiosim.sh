# Sourced by the benchmarks: builds the release programs into $build and starts radiosim with
# the options given, paced at 9600 baud and tracing into $work/trace. Sets cli, sim, work and
# device; radiosim and $work go when the script exits.
nice scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF
cli=$build/app/radioprog-cli
sim=$build/app/radiosim

work=$(mktemp -d)
sim_pid=
cleanup() {
    [ -n "$sim_pid" ] && kill "$sim_pid" 2>/dev/null && wait "$sim_pid" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

start_radiosim() {
    "$sim" --pace --trace "$work/trace" "$@" >"$work/sim.out" &
    sim_pid=$!
    for _ in $(seq 50); do [ -s "$work/sim.out" ] && break; sleep 0.1; done
    device=$(head -n1 "$work/sim.out")
    [ -n "$device" ] || { echo "radiosim did not start" >&2; exit 1; }
}
