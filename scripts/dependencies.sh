# Installs what the project's commands need, and configures what they share. Sourced, not run.
# shellcheck shell=bash disable=SC2034

build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-l10n-tools qt6-translations-l10n libqt6sql6-sqlite libreadline-dev libcsv-dev
    libexpected-dev libutf8proc-dev)
test_packages=(clang lld libgtest-dev libgmock-dev librapidcheck-dev binutils locales
    python3-jsonschema libxml2-utils fonts-dejavu-core)
bench_packages=(libbenchmark-dev libsqlite3-dev valgrind binutils git python3 python3-matplotlib)
check_packages=(clang clang-format clang-tidy clazy libclang-rt-dev shellcheck git gcovr valgrind)
picture_packages=(xvfb xauth pngquant optipng fonts-dejavu-core)
package_packages=(dpkg-dev file git lintian reuse)

is_installed() {
    dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# Runs a command as root, directly or through sudo.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "This needs root or sudo: $*" >&2
        return 1
    fi
}

# need_packages NAME...: installs those Debian packages that are missing. On a system without apt-get
# it says what has to be there and goes on, so that the build can say what it does not find.
need_packages() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        echo "This system has no apt-get. Please see to it yourself that there are, under your system's" >&2
        echo "names, what Debian calls: $*" >&2
        local tool
        for tool in cmake ninja pkg-config; do
            command -v "$tool" >/dev/null || { echo "Missing: $tool" >&2; return 1; }
        done
        return 0
    fi
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}" >&2
    as_root apt-get update -qq >&2 \
        && as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# configure_dev: build/dev, with the compiler that CXX names or else with Clang, which compiles the tests
# in less than half of GCC's time. With another one than last time it begins anew. Where TEST_EFFORT is
# given, the plugin and its host are optimised, and a debugger sees less of them.
configure_dev() {
    local cxx anew=()
    cxx=$(command -v "${CXX:-clang++}") || { echo "Missing: ${CXX:-clang++}" >&2; return 1; }
    grep -qsx "CMAKE_CXX_COMPILER:[A-Z]*=$cxx" build/dev/CMakeCache.txt || anew=(--fresh)
    CXX=$cxx cmake --preset dev "${anew[@]}" -DPACKAGINGCONTROL_OPTIMISE="${TEST_EFFORT:+ON}"
}
