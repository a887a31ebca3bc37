#!/usr/bin/env bash
# A 28 KB firmware write with its read-back verify through radioprog-cli against radiosim's boot
# loader on a pseudo-terminal, the line paced at 9600 baud. Prints the wall time, the line floor
# (every byte both ways at 9600 baud, 8N1, plus the radio's reply latency per request and the
# erase time), their ratio, and the CPU time the command used.
#
# usage: bench/firmware_bench.sh [--latency MS] [--erase-ms MS] [--build DIR] [--runs N]
set -euo pipefail
cd "$(dirname "$0")/.."

latency=5
erase=500
build=build-bench
runs=2
while (($#)); do
    case $1 in
        --latency) latency=$2; shift 2 ;;
        --erase-ms) erase=$2; shift 2 ;;
        --build) build=$2; shift 2 ;;
        --runs) runs=$2; shift 2 ;;
        *) echo "usage: $0 [--latency MS] [--erase-ms MS] [--build DIR] [--runs N]" >&2; exit 2 ;;
    esac
done

. bench/radiosim.sh
start_radiosim --latency "$latency" --erase-ms "$erase"
head -c 28672 /dev/urandom >"$work/image.bin"

echo "radiosim on $device, 9600 baud pacing, reply latency $latency ms, erase $erase ms"
for _ in $(seq "$runs"); do
    before=$(wc -l <"$work/trace")
    start=$(date +%s%N)
    children=$( { "$cli" --config "$work" firmware --port "$device" write "$work/image.bin" \
                    >/dev/null 2>>"$work/cli.err"; times; } | tail -n1)
    end=$(date +%s%N)
    wall_ms=$(( (end - start) / 1000000 ))
    cpu_ms=$(awk '{ split($1, u, /[ms]/); split($2, s, /[ms]/);
                    printf "%d", (u[1] * 60 + u[2] + s[1] * 60 + s[2]) * 1000 }' <<<"$children")
    sleep 0.2
    floor_ms=$(tail -n +"$((before + 1))" "$work/trace" | awk -v latency="$latency" -v erase="$erase" '
        $2 == ">" { bytes += NF - 2; if ($3 == "38") erases++ }
        $2 == "<" { bytes += NF - 2; replies++ }
        END { printf "%d", bytes * 10000 / 9600 + replies * latency + erases * erase }')
    awk -v wall="$wall_ms" -v floor="$floor_ms" -v cpu="$cpu_ms" 'BEGIN {
        printf "write+verify wall %6d ms  floor %6d ms  ratio %.3f  cpu %4d ms (%.1f %% of wall)\n",
               wall, floor, wall / floor, cpu, 100 * cpu / wall }'
done
if ! tail -n1 "$work/cli.err" | grep -q "Verify OK"; then
    echo "the write failed:" >&2
    cat "$work/cli.err" >&2
    exit 1
fi
