#!/usr/bin/env bash
# Builds the benchmarks as the plugin is delivered, runs them and prints the table of ratios.
# Arguments go to the table: ./bench.sh --keep writes it into docs/benchmarks.md too.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${bench_packages[@]}"
build=build/bench
cmake --preset release -B "$build" -DPACKAGINGCONTROL_BENCH=ON >&2
cmake --build "$build" --target packaging_bench till >&2

# The order of hashes, and with it the instructions, are the same in every run.
export QT_HASH_SEED=0
cd "$build"
rm -f callgrind.out.* allocations.txt times.json

echo "Counting instructions ..." >&2
valgrind --quiet --tool=callgrind --instr-atstart=no \
    --callgrind-out-file=callgrind.out bin/packaging_bench --count > allocations.txt
echo "Measuring times ..." >&2
bin/packaging_bench --benchmark_min_time=0.05 --benchmark_repetitions=15 \
    --benchmark_enable_random_interleaving=true --benchmark_out=times.json \
    --benchmark_out_format=json > times.txt
echo "Playing long receipts ..." >&2
python3 ../../bench/receipts.py bin/till > receipts.json
strip -o PackagingControl.stripped lib/packagingcontrol/plugins/PackagingControl.so

exec python3 ../../bench/table.py "$@"
