#!/usr/bin/env bash
# Builds the fuzz targets with sanitizers and runs them from the corpus in the tree. Any finding
# fails, and its input stays in build/fuzz/findings.
#
#   scripts/fuzz.sh             as CI does: 200,000 runs of the plugin, fewer of the till's readers
#   scripts/fuzz.sh FACTOR      FACTOR times as many
#   scripts/fuzz.sh --renew     keeps what the runs in build/fuzz/new found, minimised, as the corpus
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/figures.sh
. scripts/figures.sh

need_packages "${build_packages[@]}" "${check_packages[@]}"
build=build/fuzz
log=$build/logs
findings=$build/findings

# Name, runs and longest input of each target.
targets=("receipt 200000 256" "catalogue 50000 256" "till 8000 160")

mkdir -p "$log" "$findings"
CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DPACKAGINGCONTROL_FUZZ=ON -DPACKAGINGCONTROL_SANITIZE=ON -DCMAKE_UNITY_BUILD=ON \
    >"$log/build.log"
cmake --build "$build" --target fuzz_receipt fuzz_catalogue fuzz_till >>"$log/build.log" \
    || { cat "$log/build.log" >&2; exit 1; }

# Arguments that belong to a target: its words, if it reads any.
words() {
    [ ! -f "fuzz/$1.dict" ] || echo "-dict=fuzz/$1.dict"
}

if [ "${1-}" = --renew ]; then
    for target in "${targets[@]}"; do
        read -r name _ length <<<"$target"
        mkdir -p "$build/new/$name" "$build/merged/$name"
        rm -f "$build/merged/$name"/*
        "$build/bin/fuzz_$name" -merge=1 -max_len="$length" "$build/merged/$name" \
            "fuzz/corpus/$name" "$build/new/$name" 2>"$log/merge-$name.log"
        # Of those that say something new, the tree keeps 150: any, as they are named by their hash.
        find "fuzz/corpus/$name" -type f -delete
        find "$build/merged/$name" -type f | sort | head -150 \
            | xargs -r cp -t "fuzz/corpus/$name"
        echo "fuzz/corpus/$name: $(find "fuzz/corpus/$name" -type f | wc -l) files"
    done
    exit 0
fi

factor=${1:-1}
pids=()
for target in "${targets[@]}"; do
    read -r name runs length <<<"$target"
    mkdir -p "$build/new/$name"
    # shellcheck disable=SC2046
    "$build/bin/fuzz_$name" -runs=$((runs * factor)) -max_len="$length" -timeout=20 -seed="$((${TEST_SEED:-1} % 4294967295))" \
        -print_final_stats=1 -artifact_prefix="$findings/$name-" $(words "$name") \
        "$build/new/$name" "fuzz/corpus/$name" >"$log/$name.log" 2>&1 &
    pids+=($!)
done

failed=0
for index in "${!targets[@]}"; do
    read -r name wanted _ <<<"${targets[$index]}"
    if wait "${pids[$index]}"; then
        runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log/$name.log")
        figure "Fuzzing, $name" "$runs runs, no finding"
        # A target that ended by itself, before its time, found nothing because it did not look.
        [ "$runs" -ge "$((wanted * factor))" ] || failed=1
    else
        failed=1
        tail -n 60 "$log/$name.log" >&2
        echo "fuzz_$name: a finding; its input is in $findings, the report in $log/$name.log" >&2
    fi
done
exit "$failed"
