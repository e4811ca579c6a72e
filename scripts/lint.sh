#!/usr/bin/env bash
# Runs clang-tidy on all product code and clazy (level 1) on the plugin's rooms. Any finding fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${check_packages[@]}"
build=build/lint
# The linters read the sources and what moc makes of them; nothing has to be compiled.
CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_GLOBAL_AUTOGEN_TARGET=ON >/dev/null
cmake --build "$build" --target autogen >/dev/null

echo "clang-tidy"
git ls-files -z 'host/*.cpp' 'log4qt/*.cpp' 'plugin/*.cpp' 'registry/*.cpp' 'events/*.cpp' \
    'triggers/*.cpp' 'till/*.cpp' | xargs -0 -n 2 -P "$(nproc)" clang-tidy -p "$build" --quiet

echo "clazy"
git ls-files -z 'plugin/*.cpp' 'registry/*.cpp' 'events/*.cpp' 'triggers/*.cpp' \
    | CLAZY_CHECKS=level1 xargs -0 -n 4 -P "$(nproc)" clazy-standalone -p "$build" \
        --extra-arg=-Werror --extra-arg=-Wno-error=unknown-warning-option
