#!/usr/bin/env bash
# Runs the tests on a build with GCC that counts lines and branches, and fails where too few of them ran:
# all of the plugin's modules, and 95 % of the lines of the host library and of the till.
# scripts/coverage.sh --html also writes the pages build/coverage-html/index.html.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/figures.sh
. scripts/figures.sh

need_packages "${build_packages[@]}" "${test_packages[@]}" "${check_packages[@]}"
build=build/coverage
CXX=g++ cmake --preset coverage >/dev/null
cmake --build --preset coverage >"$build/build.log" 2>&1 || { cat "$build/build.log" >&2; exit 1; }

# What tests build anew, an installed tree and another host's plugin, tells nothing about these lines.
find "$build" -name '*.gcda' -delete
ctest --preset coverage -j "$(nproc)" -E '^Install\.|^Contract\.(Foreign|Every)' --quiet --output-log "$build/tests.log" \
    || { tail -n 100 "$build/tests.log" >&2; exit 1; }
figure "Tests (GCC)" "$(tests_told "$build")"

# The plugin's modules are read from the plugin's own objects, not from the tests that include their
# headers. The branches that count are those of the code: each call has one of the compiler's besides,
# for an exception that passes.
plugin=$build/plugin/CMakeFiles/PackagingControlObjects.dir
gcovr -j "$(nproc)" --root . --json "$build/plugin.json" --gcov-ignore-parse-errors \
    --exclude-throw-branches --exclude-unreachable-branches \
    --filter 'plugin/' --filter 'registry/' --filter 'events/' --filter 'triggers/' "$plugin"
gcovr -j "$(nproc)" --root . --json "$build/all.json" --gcov-ignore-parse-errors \
    --filter 'host/' --filter 'till/' "$build"

# What is left out of the count would not be covered.
if git grep -nE '(GCOV|GCOVR|LCOV)_(EXCL|UNCOVERED)' -- '*.cpp' '*.h'; then
    echo "Lines are left out of the coverage." >&2
    exit 1
fi

failed=0
# measure NAME FILE FILTER GCOVR-OPTIONS...: one row of the table; fails below the limits given.
measure() {
    local name=$1 file=$2 filter=$3 summary
    shift 3
    if ! summary=$(gcovr --root . --add-tracefile "$file" --filter "$filter" --print-summary "$@" \
        2>"$build/gcovr.log"); then
        failed=1
        printf '%s\n' "$summary" >&2
        cat "$build/gcovr.log" >&2
    fi
    summary=$(sed -n 's/^\(lines\|branches\): \([0-9.]*%\) (\([0-9]*\) out of \([0-9]*\))/\1 \2 (\3 of \4)/p' \
        <<<"$summary" | paste -sd ',' | sed 's/,/, /')
    figure "Coverage of $name" "$summary"
}

for module in plugin registry events triggers; do
    measure "$module/" "$build/plugin.json" "$module/" --fail-under-line 100 --fail-under-branch 100
done
measure host/ "$build/all.json" host/ --fail-under-line 95
measure till/ "$build/all.json" till/ --fail-under-line 95

if [ "${1-}" = --html ]; then
    mkdir -p build/coverage-html
    gcovr --root . --add-tracefile "$build/plugin.json" --add-tracefile "$build/all.json" \
        --html-details build/coverage-html/index.html
fi
exit "$failed"
