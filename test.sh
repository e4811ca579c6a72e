#!/usr/bin/env bash
# Builds everything and runs all tests. Arguments go to ctest: ./test.sh -R Receipt
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${test_packages[@]}"
cmake --preset dev
cmake --build --preset dev
ctest --preset dev -j "$(nproc)" "$@"
