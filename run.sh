#!/usr/bin/env bash
# Builds what is needed and plays the sample shop's receipts through the plugin in the till.
# Arguments go to the till: ./run.sh till opens the register, ./run.sh play FILE plays a script,
# ./run.sh --help lists everything. ./run.sh window opens the register in a window.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/dependencies.sh
. "$top/scripts/dependencies.sh"

need_packages "${build_packages[@]}"

program=till
case "${1-}" in
    "") set -- demo ;;
    till) shift ;;
    window)
        program=till-window
        shift
        ;;
esac

# Quiet when all is well; the whole log when the build fails.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
[ -x "$top/build/release/bin/$program" ] || echo "Building (about a minute the first time) ..." >&2
# How far it is, where somebody waits for it.
progress() {
    local line
    while read -r line; do
        [[ ! -t 2 || ! $line =~ ^\[[0-9]+/[0-9]+\] ]] || printf '\r%s ' "${BASH_REMATCH[0]}" >&2
    done
    [ ! -t 2 ] || printf '\r\033[K' >&2
}
if ! (cd "$top" && cmake --preset release && cmake --build --preset release --target "$program") 2>&1 \
    | tee "$log" | progress; then
    cat "$log" >&2
    exit 1
fi

rm -f "$log"
exec "$top/build/release/bin/$program" "$@"
