#!/usr/bin/env bash
# Builds the fuzz targets of the codeplug and config readers with clang and runs each for a
# bounded time. Findings are left in build-fuzz/findings/; once fixed, copy each one into
# tests/persistence/fuzz_regressions/ so that ./test.sh keeps running it.
# usage: ./fuzz.sh [SECONDS_PER_TARGET]   (default 60)
set -euo pipefail
cd "$(dirname "$0")"
scripts/deps.sh clang libclang-rt-14-dev

seconds=${1:-60}
build=build-fuzz
if [ ! -f "$build/build.ninja" ]; then
    CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DRADIOPROG_SANITIZE=ON -DRADIOPROG_FUZZ=ON -DBUILD_TESTING=OFF >/dev/null
fi
nice cmake --build "$build" --target codeplug_reader_fuzzer config_reader_fuzzer -- -j"$(nproc)" \
    >"$build/build.log" 2>&1 || { cat "$build/build.log" >&2; exit 1; }

# Allocation stacks cost a third of the time; to see them for a finding, run the target on the
# finding's file alone, without this setting.
export ASAN_OPTIONS=${ASAN_OPTIONS:-malloc_context_size=0}
mkdir -p "$build/findings"
declare -A seeds=([codeplug_reader]=tests/persistence/samples [config_reader]=fuzz/seeds/config)
status=0
for target in codeplug_reader config_reader; do
    corpus=fuzz-corpus/$target
    mkdir -p "$corpus"
    log="$build/$target.log"
    if nice "$build/fuzz/${target}_fuzzer" -max_total_time="$seconds" -max_len=8192 -timeout=10 \
        -print_final_stats=1 -artifact_prefix="$build/findings/$target-" \
        "$corpus" "${seeds[$target]}" >"$log" 2>&1; then
        result="no finding"
    else
        result="FINDING (see $log and $build/findings/)"
        status=1
    fi
    runs=$(grep -o 'stat::number_of_executed_units: [0-9]*' "$log" | grep -o '[0-9]*$' || echo "?")
    echo "$target: $runs executions in ${seconds}s, $(find "$corpus" -type f | wc -l) corpus files: $result"
done
exit "$status"
