#!/usr/bin/env bash
# A full write, a safe write (backup read, write, verify read) and a full read through
# radioprog-cli against radiosim on a pseudo-terminal, with the line paced at 9600 baud. For each it prints the wall time, the line floor (every
# byte both ways at 9600 baud, 8N1, plus per answered request the larger of the 20 ms settle
# and the radio's reply latency, plus the settle after the unanswered "E"), their ratio, and
# the CPU time the command used.
#
# usage: bench/link_bench.sh [--latency MS] [--build DIR] [--runs N]
set -euo pipefail
cd "$(dirname "$0")/.."

latency=30
build=build-bench
runs=3
while (($#)); do
    case $1 in
        --latency) latency=$2; shift 2 ;;
        --build) build=$2; shift 2 ;;
        --runs) runs=$2; shift 2 ;;
        *) echo "usage: $0 [--latency MS] [--build DIR] [--runs N]" >&2; exit 2 ;;
    esac
done

. bench/radiosim.sh
start_radiosim --latency "$latency"
export XDG_DATA_HOME=$work/data  # the safe write's backups

# A plan to write: the simulated radio's own, read once through the in-process simulator.
"$cli" --config "$work" read --port sim -o "$work/plan.qzv" >/dev/null 2>&1

# Runs the command given; sets wall_ms, cpu_ms and floor_ms (from the frames it caused).
measure() {
    local before start end children
    before=$(wc -l <"$work/trace")
    start=$(date +%s%N)
    children=$( { "$@" >/dev/null 2>>"$work/cli.err"; times; } | tail -n1)
    end=$(date +%s%N)
    wall_ms=$(( (end - start) / 1000000 ))
    cpu_ms=$(awk '{ split($1, u, /[ms]/); split($2, s, /[ms]/);
                    printf "%d", (u[1] * 60 + u[2] + s[1] * 60 + s[2]) * 1000 }' <<<"$children")
    sleep 0.2  # the radio's last trace line
    floor_ms=$(tail -n +"$((before + 1))" "$work/trace" | awk -v latency="$latency" '
        $2 == ">" { bytes += NF - 2; requests++ }
        $2 == "<" { bytes += NF - 2; replies++ }
        END {
            wait = latency > 20 ? latency : 20
            printf "%d", bytes * 10000 / 9600 + replies * wait + (requests - replies) * 20
        }')
}

report() {
    local name=$1
    awk -v name="$name" -v wall="$wall_ms" -v floor="$floor_ms" -v cpu="$cpu_ms" 'BEGIN {
        printf "%-6s wall %5d ms  floor %5d ms  ratio %.3f  cpu %4d ms (%.1f %% of wall)\n",
               name, wall, floor, wall / floor, cpu, 100 * cpu / wall }'
}

echo "radiosim on $device, 9600 baud pacing, reply latency $latency ms"
for run in $(seq "$runs"); do
    measure "$cli" --config "$work" write --no-backup --no-verify --port "$device" "$work/plan.qzv"
    report write
    measure "$cli" --config "$work" write --port "$device" "$work/plan.qzv"
    report safe
    measure "$cli" --config "$work" read --port "$device"
    report read
done
if grep -q "Error\|ERROR" "$work/cli.err"; then
    echo "a command failed:" >&2
    cat "$work/cli.err" >&2
    exit 1
fi
