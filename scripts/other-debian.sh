#!/usr/bin/env bash
# Plays README's two commands in a bare root of another Debian, the tests with GCC too, and says what it
# saw.
#
#   scripts/other-debian.sh trixie          makes the root anew
#   scripts/other-debian.sh trixie --again  uses the one that is there, with its packages
#
# The root goes to build/debian/SUITE, or to the folder that OTHER_DEBIAN names. It is made with
# debootstrap from the mirror of this system, as root or through sudo.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh
# shellcheck source=scripts/bare-root.sh
. scripts/bare-root.sh

suite=${1:?usage: $0 SUITE [--again]}
log=$PWD/build/debian-$suite
mkdir -p "$log"
need_packages git
enter_root "$suite" "$log" "${2-}"

# A clean clone, as README's reader has it.
as_root rm -rf "$root/root/project"
as_root git -c safe.directory='*' clone -q --no-hardlinks . "$root/root/project"

failed=0
for command in ./run.sh ./test.sh "CXX=g++ ./test.sh"; do
    began=$SECONDS
    name=$log/${command//[^a-z]/}.log
    if inside sh -c "cd /root/project && $command" >"$name" 2>&1; then
        echo "$command: passed in $((SECONDS - began)) s: $(tail -n 1 "$name")"
    else
        failed=1
        echo "$command: FAILED after $((SECONDS - began)) s; $name ends:" >&2
        tail -n 30 "$name" >&2
    fi
done
# shellcheck disable=SC2016 # dpkg-query fills in what is quoted here
inside sh -c 'c++ --version | head -n 1; cmake --version | head -n 1; dpkg-query -W -f "Qt \${Version}\n" qt6-base-dev'
exit "$failed"
