#!/usr/bin/env bash
# Runs clang-tidy on all product code and clazy (level 1) on the plugin's modules. Any finding fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${check_packages[@]}"
build=build/lint
# The linters read the sources and what moc makes of them.
CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPACKAGINGCONTROL_WERROR=ON \
    -DCMAKE_DISABLE_FIND_PACKAGE_Log4Qt=ON >/dev/null
# As the build does, but without the libraries that it would make first. Targets that are gone left files, too.
grep -oE '[^ ]+/AutogenInfo\.json' "$build/build.ninja" | sort -u \
    | xargs -d '\n' -I '{}' cmake -E cmake_autogen '{}' Debug

plugin=(plugin registry events triggers)
host=(host log4qt)
others=(contract till window)

# sources MODULE...: the sources of these modules, but for templates that others fill in.
sources() {
    git ls-files -- "${@/%//*.cpp}" | grep -vE '^contract/(rows|template)/'
}

# command_of SOURCE: how it is compiled.
command_of() {
    sed -n "s:^ *\"command\"\: \"\(.* -c $PWD/$1\)\",\$:\1:p" "$build/compile_commands.json" \
        | sed 's/\\\(.\)/\1/g' | head -n 1 | grep . || { echo "$1 is not compiled in $build" >&2; return 1; }
}

# flags_of MODULE...: where the sources of these modules find their headers, and what is defined for them.
flags_of() {
    local modules="$*"
    grep -B 1 -E "\"file\": \"$PWD/($build/)?(${modules// /|})/" "$build/compile_commands.json" \
        | grep -oE -- '-(D[^ ]+|I[^ ]+|isystem [^ ]+)' | sed 's/isystem /isystem/; s/\\\\\\"/"/g' | sort -u
}

# together NAME PARTS MODULE...: tells files that include the sources of the modules, as many as PARTS. Most
# of the linters' time goes into Qt's headers, so that they are read a few times and not for each source;
# the names in the sources' unnamed namespaces differ for that. Clang's analyzer follows paths in the
# file that it is given, and in those that this one includes itself if its name has UnifiedSource in it.
together() {
    local name=$1 parts=$2 file
    shift 2
    for ((part = 0; part < parts; ++part)); do
        file=$PWD/$build/UnifiedSource_$name$part.cxx
        sources "$@" | awk -v parts="$parts" -v part="$part" 'NR % parts == part' \
            | sed "s:.*:#include \"$PWD/&\":" >"$file"
        printf '%s\n' "$file"
    done
}

# tidy PARTS MODULE...: a line for each file to be read, with what it is compiled with. What is not loaded
# into a host has a quarter of the steps that the analyzer takes through a function by itself, and half of
# its time.
tidy() {
    local parts=$1 file analyzer=()
    shift
    [[ " ${plugin[*]} ${host[*]} " == *" $1 "* ]] || analyzer=(-Xclang -analyzer-config -Xclang max-nodes=50000)
    together "$1" "$parts" "$@" | while IFS= read -r file; do
        printf '%q ' clang-tidy --quiet --checks=-bugprone-suspicious-include "$file" -- -std=c++20 -fPIC \
            "${analyzer[@]}"
        flags_of "$@" | while IFS= read -r flag; do printf '%q ' "$flag"; done
        printf '\n'
    done
}
# at_once: carries out the commands on the lines of its input, as many together as there are cores.
at_once() {
    xargs -d '\n' -n 1 -P "$(nproc)" bash -c
}

echo "clang-tidy: $(sources "${plugin[@]}" "${host[@]}" "${others[@]}" | wc -l) sources"
{
    tidy 2 till
    tidy 1 contract
    tidy 1 window
    tidy 1 "${host[@]}"
    tidy 1 "${plugin[@]}"
} | at_once

# Read together, one source hides what another forgot to include. So each is checked by itself, too, without
# making code of it: those of the till and of its window after the headers that they share. The contract
# kit is always compiled in batches, and is left out.
common=({till/CMakeFiles/till,window/CMakeFiles/window}_precompiled.dir/cmake_pch.hxx.cxx)
for source in "${common[@]/#/$build/}"; do
    command=$(command_of "$source") || exit 1
    printf 'cd %q && %s\n' "$build" "$command"
done | at_once
mapfile -t alone < <(sources "${plugin[@]}" "${host[@]}" till window)
echo "each alone: ${#alone[@]} sources"
for source in "${alone[@]}"; do
    command=$(command_of "$source") || exit 1
    printf 'cd %q && %s -fsyntax-only\n' "$build" "$command"
done | at_once

echo "clazy: $(sources "${plugin[@]}" | wc -l) sources"
mapfile -t flags < <(flags_of "${plugin[@]}")
reading=$(together clazy 1 "${plugin[@]}")
[ -s "$reading" ]
CLAZY_CHECKS=level1 clazy-standalone --header-filter='/(plugin|registry|events|triggers)/[^/]*\.(h|cpp)$' \
    "$reading" \
    -- -std=c++20 -fPIC "${flags[@]}" -Werror -Wno-error=unknown-warning-option
