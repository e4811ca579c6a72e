#!/usr/bin/env bash
# Builds everything and runs all tests. Arguments go to ctest: ./test.sh -R Receipt
#
# What is tried at random is the same every time. TEST_SEED=N ./test.sh tries something else, and
# TEST_EFFORT=10 ./test.sh ten times as much, on a plugin and a host that are optimised a little.
# CXX=g++ ./test.sh builds with GCC instead of Clang.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/figures.sh
. scripts/figures.sh

need_packages "${build_packages[@]}" "${test_packages[@]}"
export TEST_SEED=${TEST_SEED:-20240607}
configure_dev
cmake --build --preset dev

log=build/dev/Testing/Temporary/LastTest.log
rm -f "$log"
built=$SECONDS status=0 effort=
[ "${TEST_EFFORT:-1}" = 1 ] || effort=" effort $TEST_EFFORT"
ctest --preset dev -j "$(nproc)" "$@" || status=$?
printf '\n'
grep -aohE '[0-9]+ sequences of up to .* s, no difference' "$log" || true
printf '%s; built in %s s, tested in %s s; seed %s%s\n' \
    "$(tests_told build/dev)" "$built" $((SECONDS - built)) "$TEST_SEED" "$effort"
exit "$status"
