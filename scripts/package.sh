#!/usr/bin/env bash
# Builds the Debian packages, the archive and their bill of materials into build/release/packages.
#
#   scripts/package.sh                   builds them, and has lintian look at them
#   scripts/package.sh bookworm          tries them in a bare root of that Debian, too
#   scripts/package.sh bookworm --again  the same in the root that is there, with its packages
#
# Tried is, with nothing of this tree in reach: install, play the sample receipts, unpack the archive
# and play them there, build the plugin against the installed host, run the installed contract kit, and
# remove everything without a rest. For the root see scripts/bare-root.sh.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/bare-root.sh
. scripts/bare-root.sh

suite=${1-}
packages=build/release/packages
log=$PWD/build/package
mkdir -p "$log"

# logged NAME COMMAND...: its output goes to a file of that name, and is shown when it fails.
logged() {
    local name=$1 began=$SECONDS status
    shift
    set +e # within a condition the shell would go on after a command that fails
    (set -e; "$@") >"$log/$name.log" 2>&1
    status=$?
    set -e
    if [ "$status" -eq 0 ]; then
        echo "$name: passed in $((SECONDS - began)) s"
    else
        echo "$name: FAILED; $log/$name.log ends:" >&2
        tail -n 30 "$log/$name.log" >&2
        return 1
    fi
}

build_packages() {
    rm -rf "$packages"
    # Of the commit's time, whenever they are built.
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
    export SOURCE_DATE_EPOCH
    cmake --preset release
    cmake --build --preset release --target package
    rm -r "$packages/_CPack_Packages"
    reuse spdx --output "$packages/packagingcontrol.spdx"
}

need_packages "${build_packages[@]}" "${package_packages[@]}"
logged build build_packages
logged lintian lintian --allow-root --fail-on error "$packages"/*.deb
cat "$log/lintian.log"
(cd "$packages" && sha256sum -- *)
[ -n "$suite" ] || exit 0

enter_root "$suite" "$log" "${2-}"
try=$root/tmp/try
as_root rm -rf "$try"
as_root mkdir -m 777 "$try"
as_root cp "$packages"/*.deb "$packages"/*.tar.gz "$try"
as_root mkdir "$try/source"
as_root cp -r CMakeLists.txt cmake contract plugin registry events triggers "$try/source"

# all_files: what lies in the root, but for what apt and dpkg note.
all_files() {
    inside find / -xdev \( -path /tmp -o -path /var/cache -o -path /var/log -o -path /var/lib/apt \
        -o -path /var/lib/dpkg \) -prune -o -print | sort
}

# What the packages ask for, but for each other, and the tools of whoever builds.
install_dependencies() {
    local wanted
    inside apt-get update
    wanted=$(for package in "$packages"/*.deb; do dpkg-deb -f "$package" Depends; done \
        | tr ',' '\n' | grep -v packagingcontrol | paste -sd ',')
    inside apt-get satisfy -y --no-install-recommends "$wanted, g++, cmake, ninja-build"
}

install_packages() {
    inside sh -c 'dpkg -i /tmp/try/*.deb'
}

# demo PROGRAM [OPTION...]: as a user who may write nowhere.
demo() {
    inside setpriv --reuid=65534 --regid=65534 --clear-groups env HOME=/nowhere "$@" --version
    inside setpriv --reuid=65534 --regid=65534 --clear-groups env HOME=/nowhere "$@" demo
}

unpacked_demo() {
    inside sh -c 'mkdir "/tmp/try/any where" && tar xzf /tmp/try/*.tar.gz --strip-components 1 \
        -C "/tmp/try/any where"'
    demo "/tmp/try/any where/bin/till"
}

build_plugin() {
    inside cmake -S /tmp/try/source -B /tmp/try/plugin -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DPACKAGINGCONTROL_HOST_PACKAGE=PackagingHost
    inside cmake --build /tmp/try/plugin
    inside cmake --install /tmp/try/plugin --prefix /tmp/try/installed
    demo till --plugin /tmp/try/installed/lib/packagingcontrol/plugins/PackagingControl.so
}

# The window draws itself without a display, as a user who may write nowhere, and says so of its version.
window_version() {
    inside setpriv --reuid=65534 --regid=65534 --clear-groups env HOME=/nowhere till-window --version
}

run_kit() {
    inside cmake -S /usr/share/packagingcontrol/contract -B /tmp/try/kit -G Ninja \
        -DPACKAGINGCONTROL_PLUGIN_FILE=/usr/lib/packagingcontrol/plugins/PackagingControl.so
    inside cmake --build /tmp/try/kit --target contract
}

remove_packages() {
    inside dpkg --purge packagingcontrol-dev packagingcontrol-window packagingcontrol
    all_files | diff "$log/before.txt" -
}

logged dependencies install_dependencies
all_files >"$log/before.txt"
logged unpack unpacked_demo
logged install install_packages
logged demo demo till
logged window window_version
logged plugin build_plugin
logged kit run_kit
tail -n 1 "$log/kit.log"
logged remove remove_packages
