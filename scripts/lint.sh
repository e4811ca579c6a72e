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
# itself if its name has UnifiedSource in it.
find "$build" -name 'UnifiedSource_*' -delete
find "$build" -name 'unity_*.cxx' -print0 | while IFS= read -r -d '' batch; do
    cp "$batch" "${batch/\/unity_//UnifiedSource_}"
done
sed -i 's:/unity_:/UnifiedSource_:g' "$build/compile_commands.json"

# batches FILTER: the batches of the modules in build/lint whose paths match.
batches() {
    find "$build" -path "$1" -name 'UnifiedSource_*.cxx' -print0 | sort -rz
}

mapfile -t plugin < <(git ls-files 'plugin/*.cpp' 'registry/*.cpp' 'events/*.cpp' 'triggers/*.cpp')
mapfile -t others < <(git ls-files 'host/*.cpp' 'log4qt/*.cpp' 'till/*.cpp' 'window/*.cpp')

# The till's modules are small, and read together as far as the names in them go together.
mapfile -t flags < <(grep -B 1 -E '"file": ".*/(till|window)/' "$build/compile_commands.json" \
    | grep -oE -- '-(D[^ ]+|I[^ ]+|isystem [^ ]+)' | sed 's/isystem /isystem/; s/\\\\\\"/"/g' | sort -u)
flags+=(-std=c++20 -fPIC)
# join BATCHES...: tells a file that has them all, or several.
join() {
    local all
    all=$(mktemp "$build/UnifiedSource_XXXXXX.cxx")
    cat "$@" >"$all"
    if [ $# -eq 1 ] || clang++ "${flags[@]}" -fsyntax-only -ferror-limit=1 "$all" 2>/dev/null; then
        printf '%s\0' "$all"
    else
        rm "$all"
        join "${@:1:$#/2}"
        join "${@:$#/2+1}"
    fi
}
mapfile -d '' -t small < <(batches "$build/till/*"; batches "$build/window/*")
mapfile -d '' -t joined < <(for ((i = 0; i < ${#small[@]}; i += 10)); do join "${small[@]:i:10}"; done)
mapfile -d '' -t apart < <(for module in plugin host log4qt contract; do batches "$build/$module/*"; done)
for source in "${plugin[@]}" "${others[@]}"; do
    grep -qsF "/$source\"" "${joined[@]}" "${apart[@]}" \
        || { echo "$source is in no batch that is read" >&2; exit 1; }
done

# tidy ARGUMENTS...: reads the files that it is given.
tidy() {
    xargs -0 -I '{}' -P "$(nproc)" clang-tidy --quiet --checks=-bugprone-suspicious-include '{}' "$@"
}
echo "clang-tidy: $((${#plugin[@]} + ${#others[@]})) sources"
printf '%s\0' "${apart[@]}" | tidy -p "$build"
printf '%s\0' "${joined[@]}" | tidy -- "${flags[@]}"

# Batches hide what a source forgot to include, so each is compiled alone too, but for its code.
alone=build/lint-alone
CXX=clang++ cmake -S . -B "$alone" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPACKAGINGCONTROL_WERROR=ON \
    -DCMAKE_GLOBAL_AUTOGEN_TARGET=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
cmake --build "$alone" --target autogen >/dev/null
echo "each alone: $((${#plugin[@]} + ${#others[@]})) sources"
for source in "${plugin[@]}" "${others[@]}"; do
    sed -n "s:^ *\"command\"\: \"\(.* -c $PWD/$source\)\",\$:\1:p" "$alone/compile_commands.json" \
        | head -n 1 | grep . || { echo "$source is not compiled in $alone" >&2; exit 1; }
done | sed 's/\\\(.\)/\1/g' | xargs -d '\n' -P "$(nproc)" -I '{}' sh -c "cd $alone && {} -fsyntax-only"

echo "clazy: ${#plugin[@]} sources"
batches '*/plugin/*' | CLAZY_CHECKS=level1 xargs -0 -n 1 -P "$(nproc)" clazy-standalone -p "$build" \
    --header-filter='/(plugin|registry|events|triggers)/[^/]*\.(h|cpp)$' \
    --extra-arg=-Werror --extra-arg=-Wno-error=unknown-warning-option
