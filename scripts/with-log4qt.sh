#!/usr/bin/env bash
# Builds what logs against an installed Log4Qt, and runs all tests that concern logging.
#
#   scripts/with-log4qt.sh PREFIX        with the package of Log4Qt that lies in PREFIX
#   scripts/with-log4qt.sh --stand-in    with our stand-in, installed as a package of that name
#
# Further arguments are targets to build instead of everything; then only their tests run.
#
# Log4Qt is not to be had from Debian. Version 1.6 fits Qt 6.4, version 2.0 Qt 6.5 and newer.
set -euo pipefail
given=${1+$(realpath -m -- "$1")} # from where the caller is
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

need_packages "${build_packages[@]}" "${test_packages[@]}"
build=build/with-log4qt
mkdir -p "$build"

# install_stand_in PREFIX: builds the stand-in alone and makes a package of Log4Qt's name of it.
install_stand_in() {
    local source=$build/stand-in
    rm -rf "$source" "$1"
    mkdir -p "$source"
    cat >"$source/CMakeLists.txt" <<EOF
cmake_minimum_required(VERSION 3.25)
project(Log4Qt VERSION 0.0.1 LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 20)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core)
qt_standard_project_setup()
add_subdirectory($PWD/log4qt log4qt)
set_target_properties(log4qt PROPERTIES EXPORT_NAME log4qt)
install(EXPORT PackagingHostTargets NAMESPACE Log4Qt:: FILE Log4QtConfig.cmake DESTINATION lib/cmake/Log4Qt)
EOF
    cmake -S "$source" -B "$source/build" -G Ninja
    cmake --build "$source/build"
    cmake --install "$source/build" --prefix "$1"
}

case ${1-} in
    --stand-in)
        prefix=$PWD/$build/prefix
        install_stand_in "$prefix" >"$build/stand-in.log" 2>&1 || { cat "$build/stand-in.log" >&2; exit 1; }
        ;;
    ?*) prefix=$given ;;
    *)
        echo "usage: $0 PREFIX | --stand-in" >&2
        exit 2
        ;;
esac
shift
targets=()
[ $# -eq 0 ] || targets=(--target PackagingControl "$@")

rm -rf "$build/build"
cmake -S . -B "$build/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DBUILD_TESTING=ON \
    -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 \
    -DCMAKE_PREFIX_PATH="$prefix" | tee "$build/configure.log" | grep 'Log4Qt' || true
if ! grep -q "Log4Qt found in $prefix/" "$build/configure.log"; then
    echo "There is no package of Log4Qt in $prefix." >&2
    exit 1
fi
cmake --build "$build/build" "${targets[@]}" >"$build/build.log" 2>&1 || { cat "$build/build.log" >&2; exit 1; }
if ! readelf -d "$build/build/lib/packagingcontrol/plugins/PackagingControl.so" | grep 'NEEDED.*log4qt' >/dev/null; then
    echo "The plugin does not use a Log4Qt." >&2
    exit 1
fi

# What was logged is looked at in tests of every module. The tests of the stand-in itself are not
# built, nor is what was not asked for, and the installed tree is another matter.
left_out='^Install\.|_is_not_built$'
[ $# -eq 0 ] || left_out+='|^(Contract|PluginSession|Slot|regressions|till)\.'
ctest --test-dir "$build/build" -j "$(nproc)" --output-on-failure --no-tests=error -E "$left_out"
