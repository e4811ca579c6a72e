#!/usr/bin/env bash
# Builds the fuzz targets with sanitizers and runs them from the corpus in the tree. Any finding
# fails, and its input stays in build/fuzzing/findings. FUZZ_BUILD names another folder to build in
# than build/asan, with Clang.
#
#   scripts/fuzz.sh             as CI does: 200,000 runs of the plugin, fewer of the till's readers
#   scripts/fuzz.sh FACTOR      FACTOR times as many
#   scripts/fuzz.sh --renew     keeps what earlier runs found, minimised, as the corpus
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/figures.sh
. scripts/figures.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" "${check_packages[@]}"
build=${FUZZ_BUILD:-build/asan}
fuzzing=build/fuzzing
log=$fuzzing/logs
findings=$fuzzing/findings

# Name, runs, longest input and processes of each target: the runs of the plugin are by far the most,
# so half of them begin at another seed beside the others.
targets=("receipt 200000 256 2" "catalogue 50000 256 1" "till 8000 160 1")

mkdir -p "$log" "$findings"
cmake --preset asan -B "$build" >"$log/build.log"
cmake --build "$build" --target fuzz_receipt fuzz_catalogue fuzz_till >>"$log/build.log" \
    || { cat "$log/build.log" >&2; exit 1; }

# Arguments that belong to a target: its words, if it reads any.
words() {
    [ ! -f "fuzz/$1.dict" ] || echo "-dict=fuzz/$1.dict"
}

if [ "${1-}" = --renew ]; then
    for target in "${targets[@]}"; do
        read -r name _ length _ <<<"$target"
        mkdir -p "$fuzzing/new/$name" "$fuzzing/merged/$name"
        rm -f "$fuzzing/merged/$name"/*
        "$build/bin/fuzz_$name" -merge=1 -max_len="$length" "$fuzzing/merged/$name" \
            "fuzz/corpus/$name" "$fuzzing/new/$name" 2>"$log/merge-$name.log"
        # Of those that say something new, the tree keeps 150: any, as they are named by their hash.
        find "fuzz/corpus/$name" -type f -delete
        find "$fuzzing/merged/$name" -type f | sort | head -150 \
            | xargs -r cp -t "fuzz/corpus/$name"
        echo "fuzz/corpus/$name: $(find "fuzz/corpus/$name" -type f | wc -l) files"
    done
    exit 0
fi

# Where memory came from is told five calls deep, which saves a sixth of the time: a finding's input, run by
# itself, tells all.
export ASAN_OPTIONS=malloc_context_size=5${ASAN_OPTIONS:+:$ASAN_OPTIONS}
factor=${1:-1}
seed=${TEST_SEED:-20240607}
echo "Fuzzing with seed $seed; TEST_SEED=N tries another"
pids=()
for target in "${targets[@]}"; do
    read -r name runs length processes <<<"$target"
    mkdir -p "$fuzzing/new/$name"
    for ((i = 1; i <= processes; ++i)); do
        # shellcheck disable=SC2046
        "$build/bin/fuzz_$name" -runs=$((runs * factor / processes)) -max_len="$length" -timeout=20 \
            -seed=$(((seed + i) % 4294967295 + 1)) -print_final_stats=1 \
            -artifact_prefix="$findings/$name-" $(words "$name") \
            "$fuzzing/new/$name" "fuzz/corpus/$name" >"$log/$name-$i.log" 2>&1 &
        pids+=($!)
    done
done

failed=0
for target in "${targets[@]}"; do
    read -r name wanted _ processes <<<"$target"
    runs=0
    for ((i = 1; i <= processes; ++i)); do
        log_file=$log/$name-$i.log
        if wait "${pids[0]}"; then
            runs=$((runs + $(sed -n 's/^stat::number_of_executed_units: *//p' "$log_file")))
        else
            failed=1
            tail -n 60 "$log_file" >&2
            echo "fuzz_$name: a finding; its input is in $findings, the report in $log_file" >&2
        fi
        pids=("${pids[@]:1}")
    done
    # A target that ended by itself, before its time, found nothing because it did not look.
    if [ "$runs" -ge "$((wanted * factor))" ]; then
        figure "Fuzzing, $name" "$runs runs, no finding"
    else
        echo "fuzz_$name: $runs runs where $((wanted * factor)) were wanted" >&2
        failed=1
    fi
done
exit "$failed"
