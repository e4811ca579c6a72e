# A bare root of another Debian, to try things in as on a machine of somebody else's. Sourced after
# dependencies.sh, not run; with the project's top as the current directory.
# shellcheck shell=bash disable=SC2154
# shellcheck disable=SC2016 # apt-get fills in what is quoted here

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
        DEBIAN_FRONTEND=noninteractive chroot "$root" "$@"
}

# enter_root SUITE LOG [--again]: sets `root` to the root of that Debian, in build/debian or the folder
# that OTHER_DEBIAN names. It is made with debootstrap, as root or through sudo; with --again the one that
# is there is used as it is.
enter_root() {
    root=${OTHER_DEBIAN:-$PWD/build/debian}/$1
    need_packages debootstrap
    mkdir -p "$(dirname "$root")"
    if [ "${3-}" != --again ]; then
        as_root rm -rf --one-file-system "$root"
        as_root debootstrap --variant=minbase "$1" "$root" "$(mirror)" >"$2/debootstrap.log" 2>&1 \
            || { tail -n 20 "$2/debootstrap.log" >&2; return 1; }
    fi
    # Devices and processes, as programs expect them; gone with the script.
    as_root mount --bind /proc "$root/proc"
    as_root mount --bind /dev "$root/dev"
    as_root mount --bind /dev/pts "$root/dev/pts" # or no program has a terminal
    trap 'as_root umount "$root/dev/pts" "$root/dev" "$root/proc"' EXIT
    as_root cp /etc/resolv.conf "$root/etc/resolv.conf"
    inside sh -c '. /etc/os-release && echo "$PRETTY_NAME"'
}
