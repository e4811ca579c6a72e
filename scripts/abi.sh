#!/usr/bin/env bash
# Compares the host library's binary interface with the kept one, abi/host.abi, and fails when it
# differs in anything: a symbol, a size, an offset, a place in a virtual table.
# scripts/abi.sh --renew writes the kept one anew (docs/abi.md says when that is right).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/figures.sh
. scripts/figures.sh

need_packages "${build_packages[@]}" "${check_packages[@]}"
mkdir -p build/abi
log=build/abi/build.log
if ! { cmake --preset dev && cmake --build --preset dev --target PackagingHost; } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi

# describe FILE: writes the interface of the library just built.
describe() {
    abidw --headers-dir host --suppressions abi/host.suppr --drop-private-types \
        --drop-undefined-syms --exported-interfaces-only --no-show-locs --no-comp-dir-path \
        --no-corpus-path --no-parameter-names --no-write-default-sizes --no-elf-needed \
        --type-id-style hash --out-file "$1" build/dev/lib*/libPackagingHost.so.1
}

if [ "${1-}" = --renew ]; then
    describe abi/host.abi
    exit
fi

describe build/abi/host.abi
if ! abidiff --suppressions abi/host.suppr abi/host.abi build/abi/host.abi; then
    echo "The host library's binary interface changed (see docs/abi.md)." >&2
    exit 1
fi
symbols=$(grep -c '<elf-symbol ' abi/host.abi)
figure "Binary interface of the host library" "unchanged, $symbols symbols"
