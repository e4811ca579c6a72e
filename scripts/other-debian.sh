#!/usr/bin/env bash
# Plays README's two commands in a bare root of another Debian, the tests with GCC too, and says what it
# saw.
#
#   scripts/other-debian.sh trixie          makes the root anew
#   scripts/other-debian.sh trixie --again  uses the one that is there, with its packages
#
# The root goes to build/debian/SUITE, or to the folder that OTHER_DEBIAN names. It is made with
# debootstrap from the mirror of this system, as root or through sudo.
# shellcheck disable=SC2016 # apt-get and the shell inside fill in what is quoted here
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/dependencies.sh
. scripts/dependencies.sh

suite=${1:?usage: $0 SUITE [--again]}
root=${OTHER_DEBIAN:-$PWD/build/debian}/$suite
log=$PWD/build/debian-$suite
mkdir -p "$(dirname "$root")" "$log"

# The mirror from which apt takes this system's own packages.
mirror() {
    local here
    here=$(. /etc/os-release && echo "$VERSION_CODENAME")
    apt-get indextargets --format '$(SITE) $(CODENAME) $(COMPONENT)' 'Origin: Debian' \
        | awk -v suite="$here" '$2 == suite && $3 == "main" { print $1; exit }'
}

# inside COMMAND...: runs it in the root.
inside() {
    as_root env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root TERM=dumb LC_ALL=C.UTF-8 \
        chroot "$root" "$@"
}

need_packages debootstrap git
if [ "${2-}" != --again ]; then
    as_root rm -rf --one-file-system "$root"
    as_root debootstrap --variant=minbase "$suite" "$root" "$(mirror)" >"$log/debootstrap.log" 2>&1 \
        || { tail -n 20 "$log/debootstrap.log" >&2; exit 1; }
fi
# Devices and processes, as programs expect them; gone with the script.
as_root mount --bind /proc "$root/proc"
as_root mount --bind /dev "$root/dev"
trap 'as_root umount "$root/dev" "$root/proc"' EXIT
as_root cp /etc/resolv.conf "$root/etc/resolv.conf"

# A clean clone, as README's reader has it.
as_root rm -rf "$root/root/project"
as_root git -c safe.directory='*' clone -q --no-hardlinks . "$root/root/project"

inside sh -c '. /etc/os-release && echo "$PRETTY_NAME"'
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
inside sh -c 'c++ --version | head -n 1; cmake --version | head -n 1; dpkg-query -W -f "Qt \${Version}\n" qt6-base-dev'
exit "$failed"
