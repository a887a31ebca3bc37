#!/usr/bin/env bash
# Builds the fuzz targets with clang (AddressSanitizer and UndefinedBehaviorSanitizer on) and runs
# each to a number of executions or a time budget, whichever ends first. Findings are left in
# build-fuzz/findings/; once fixed, copy each into the regression folder of its target (listed
# below) so that ./test.sh keeps running it.
# usage: ./fuzz.sh [--runs N] [--seconds S] [TARGET...]
#   --runs     executions per target (env FUZZ_RUNS, default 10000000)
#   --seconds  time budget per target (env FUZZ_SECONDS, default 7200)
# A CI-sized run: ./fuzz.sh --runs 20000
set -euo pipefail
cd "$(dirname "$0")"

runs=${FUZZ_RUNS:-10000000}
seconds=${FUZZ_SECONDS:-7200}
targets=()
while (($#)); do
    case $1 in
        --runs) runs=$2; shift 2 ;;
        --seconds) seconds=$2; shift 2 ;;
        *) targets+=("$1"); shift ;;
    esac
done

persistence=tests/persistence
link=tests/link
# target -> its seeds (the regression folder first, where findings belong)
declare -A seeds=(
    [codeplug_reader]="$persistence/fuzz_regressions $persistence/samples"
    [legacy_layouts]="$persistence/fuzz_regressions $persistence/samples"
    [round_trip]="$persistence/fuzz_regressions $persistence/samples"
    [config_reader]="$persistence/fuzz_regressions fuzz/seeds/config"
    [frame_parser]="$link/fuzz_regressions"
    [reply_decoder]="$link/fuzz_regressions"
    [boot_replies]="tests/bootloader/fuzz_regressions"
    [csv_reader]="$persistence/csv_fuzz_regressions"
)
((${#targets[@]})) || targets=(codeplug_reader legacy_layouts config_reader round_trip frame_parser
                                reply_decoder boot_replies csv_reader)

scripts/deps.sh clang libclang-rt-14-dev
build=build-fuzz
if [ ! -f "$build/build.ninja" ]; then
    CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DRADIOPROG_SANITIZE=ON -DRADIOPROG_FUZZ=ON -DBUILD_TESTING=OFF >/dev/null
fi
nice cmake --build "$build" --target "${targets[@]/%/_fuzzer}" -- -j2 \
    >"$build/build.log" 2>&1 || { cat "$build/build.log" >&2; exit 1; }

# Allocation stacks cost a third of the time; to see them for a finding, run the target on the
# finding's file alone, without this setting.
export ASAN_OPTIONS=${ASAN_OPTIONS:-malloc_context_size=0}
mkdir -p "$build/findings"
status=0
for target in "${targets[@]}"; do
    corpus=fuzz-corpus/$target
    mkdir -p "$corpus"
    log="$build/$target.log"
    # shellcheck disable=SC2086  # the seed folders are separate words
    if nice "$build/fuzz/${target}_fuzzer" -runs="$runs" -max_total_time="$seconds" \
        -max_len=8192 -timeout=10 -print_final_stats=1 \
        -artifact_prefix="$build/findings/$target-" "$corpus" ${seeds[$target]} >"$log" 2>&1; then
        result="no finding"
    else
        result="FINDING (see $log and $build/findings/)"
        status=1
    fi
    done_runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo "?")
    rate=$(grep -o 'stat::average_exec_per_sec: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo "?")
    took=$(grep -o 'Done [0-9]* runs in [0-9]* second' "$log" | grep -o '[0-9]* second' || echo "? second")
    echo "$target: $done_runs executions in ${took}s, $rate/s," \
        "$(find "$corpus" -type f | wc -l) corpus files: $result"
done
exit "$status"
