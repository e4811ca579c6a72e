#!/usr/bin/env bash
# Runs clang-tidy on all product code and clazy (level 1) on the plugin's modules. Any finding fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${check_packages[@]}"
build=build/lint
# The linters read the sources and what moc makes of them; nothing has to be compiled. They read
# batches of sources, as most of their time goes into Qt's headers.
CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_GLOBAL_AUTOGEN_TARGET=ON -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 \
    -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
cmake --build "$build" --target autogen >/dev/null
# Clang's analyzer follows paths only in the file that it is given, and in those that this one includes
# if its own name has UnifiedSource in it.
find "$build" -name 'unity_*.cxx' -print0 | while IFS= read -r -d '' batch; do
    cp "$batch" "${batch/\/unity_//UnifiedSource_}"
done
sed -i 's:/unity_:/UnifiedSource_:g' "$build/compile_commands.json"

# batches FILTER: the batches of the modules in build/lint whose paths match.
batches() {
    find "$build" -path "$1" -name 'UnifiedSource_*.cxx' -print0 | sort -rz
}

# covered FILTER SOURCES...: fails where a source is in none of the batches, so that none is left out.
covered() {
    local filter=$1 source
    shift
    for source in "$@"; do
        batches "$filter" | xargs -0 grep -qsF "/$source\"" \
            || { echo "$source is in no batch of $build" >&2; return 1; }
    done
}

mapfile -t plugin < <(git ls-files 'plugin/*.cpp' 'registry/*.cpp' 'events/*.cpp' 'triggers/*.cpp')
mapfile -t others < <(git ls-files 'host/*.cpp' 'log4qt/*.cpp' 'till/*.cpp' 'window/*.cpp')
covered '*/plugin/*' "${plugin[@]}"
covered '*' "${others[@]}"

echo "clang-tidy: $((${#plugin[@]} + ${#others[@]})) sources"
batches '*' | xargs -0 -n 1 -P "$(nproc)" clang-tidy -p "$build" --quiet \
    --checks=-bugprone-suspicious-include

# Batches hide what a source forgot to include, so each is looked at alone too.
alone=build/lint-alone
CXX=clang++ cmake -S . -B "$alone" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_GLOBAL_AUTOGEN_TARGET=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
cmake --build "$alone" --target autogen >/dev/null
echo "each alone: $((${#plugin[@]} + ${#others[@]})) sources"
printf '%s\0' "${plugin[@]}" "${others[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p "$alone" --quiet \
    --checks=-*,misc-definitions-in-headers

echo "clazy: ${#plugin[@]} sources"
batches '*/plugin/*' | CLAZY_CHECKS=level1 xargs -0 -n 1 -P "$(nproc)" clazy-standalone -p "$build" \
    --header-filter='/(plugin|registry|events|triggers)/[^/]*\.(h|cpp)$' \
    --extra-arg=-Werror --extra-arg=-Wno-error=unknown-warning-option
