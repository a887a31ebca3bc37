#!/usr/bin/env bash
# The desktop program under Xvfb: cold start to the first paint of the main window (median of
# five starts), then, with the window idle on the simulated radio, the CPU time used over 10 s
# and the resident memory. Targets: <= 300 ms, about 0 % CPU, <= 60 MB.
# Not a test: the figures depend on the machine and on what else runs on it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
build=build
scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF

unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
export BENCH_PROGRAM="$PWD/$build/app/radioprog"
exec xvfb-run -a -s "-screen 0 1600x1000x24 -dpi 96" bash -c '
set -euo pipefail
config=$(mktemp -d)
trap "rm -rf \"$config\"" EXIT

# Starts the program; sets $pid, and $ms to the milliseconds until the first paint.
start() {
    local log=$1 begin
    begin=$(date +%s%3N)
    RADIOPROG_REPORT_FIRST_PAINT=1 "$BENCH_PROGRAM" --simulator --config "$config" 2>"$log" &
    pid=$!
    for _ in $(seq 200); do
        if grep -q first-paint-epoch-ms "$log"; then
            ms=$(( $(awk "/first-paint-epoch-ms/ {print \$2}" "$log") - begin ))
            return
        fi
        sleep 0.05
    done
    echo "no first paint within 10 s" >&2
    exit 1
}
cpu_ticks() { awk "{print \$14 + \$15}" "/proc/$1/stat"; }

log=$(mktemp)
"$BENCH_PROGRAM" --config "$config" --help >/dev/null  # config.ini and caches exist from here on
times=()
for _ in 1 2 3 4 5; do
    start "$log"
    times+=("$ms")
    kill "$pid"; wait "$pid" 2>/dev/null || true
done
median=$(printf "%s\n" "${times[@]}" | sort -n | sed -n 3p)
echo "cold start to first paint: ${median} ms (runs: ${times[*]})"

start "$log"
sleep 3  # past the start-up screen and the first port-state refresh
before=$(cpu_ticks "$pid")
sleep 10
after=$(cpu_ticks "$pid")
hz=$(getconf CLK_TCK)
awk -v t=$((after - before)) -v hz="$hz" "BEGIN { printf \"idle CPU over 10 s: %.2f %% (%d ticks)\n\", 100 * t / hz / 10, t }"
awk "/VmRSS/ { printf \"idle RSS: %.1f MB\n\", \$2 / 1024 }" "/proc/$pid/status"
kill "$pid"; wait "$pid" 2>/dev/null || true
rm -f "$log"
'
