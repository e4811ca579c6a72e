#!/usr/bin/env bash
# Builds the benchmarks as the plugin is delivered, runs them and prints the table of ratios.
#   ./bench.sh                   prints it
#   ./bench.sh --keep            writes it into docs/benchmarks.md too, with a picture
#   ./bench.sh --against COMMIT  measures that commit as well, and prints both side by side
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

other=
case "$#:${1-}" in
    0: | 1:--keep) ;;
    2:--against)
        other=$(git rev-parse --verify --quiet --short "$2^{commit}") \
            || { echo "bench.sh: there is no commit $2" >&2; exit 2; } ;;
    *) sed -n 's/^# \{0,1\}//p' bench.sh | sed -n 2,5p >&2; exit 2 ;;
esac

need_packages "${build_packages[@]}" "${test_packages[@]}" "${bench_packages[@]}"
top=$PWD
build=$top/build/bench
cmake --preset release -B "$build" -DPACKAGINGCONTROL_BENCH=ON -DBUILD_TESTING=ON >&2
cmake --build "$build" --target packaging_bench till window_redraw >&2

# The order of hashes, and with it the instructions, are the same in every run.
export QT_HASH_SEED=0
export PYTHONDONTWRITEBYTECODE=1 # no files beside the sources
cd "$build"
rm -f callgrind.out.* allocations.txt times.json redraw.txt

echo "Counting instructions ..." >&2
valgrind --quiet --tool=callgrind --instr-atstart=no \
    --callgrind-out-file=callgrind.out bin/packaging_bench --count > allocations.txt
echo "Measuring times ..." >&2
bin/packaging_bench --benchmark_min_time=0.05 --benchmark_repetitions=15 \
    --benchmark_enable_random_interleaving=true --benchmark_out=times.json \
    --benchmark_out_format=json > times.txt
echo "Playing long receipts ..." >&2
/usr/bin/python3 "$top/bench/receipts.py" bin/till > receipts.json
bin/window_redraw 1000 > redraw.txt
strip -o PackagingControl.stripped lib/packagingcontrol/plugins/PackagingControl.so
cd "$top"

# The other commit is measured by its own benchmarks, in a checkout of its own. Git may still know of one
# that went with an earlier build folder: hence --force.
if [ -n "$other" ]; then
    checkout=$top/build/against/$other
    [ -e "$checkout" ] || git worktree add --force --detach "$checkout" "$other" >&2
    echo "Measuring $other ..." >&2
    "$checkout/bench.sh" >&2
    set -- --against "$other" "$checkout/build/bench"
fi
exec /usr/bin/python3 bench/table.py "$build" "$@"
