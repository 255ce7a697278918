# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# Fresh Debian systems to try things in, for scripts that root runs in namespaces of mounts and
# processes of its own.

systems=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")

# make_system SUITE ROOT: packages come from where this machine has its own.
make_system() {
    local suite=$1 root=$2 source
    # One of the two is enough.
    source=$(cat /etc/apt/sources.list.d/* /etc/apt/sources.list 2>/dev/null |
        sed -n 's/^URIs: *//p; s/^deb \(\[[^]]*\] \)\?\([^ ]*\) .*/\2/p' | head -n 1) || true
    debootstrap --variant=minbase --include=ca-certificates "$suite" "$root" "$source"
    rm --force "$root/etc/apt/sources.list"
    cp --recursive /etc/apt/sources.list.d "$root/etc/apt/"
    copy_own_settings "$root"
    # shellcheck disable=SC1091 # the system's
    sed --in-place "s/$(. /etc/os-release && echo "$VERSION_CODENAME")/$suite/g" \
        "$root"/etc/apt/sources.list.d/*
    cp /etc/resolv.conf /etc/hosts "$root/etc/"
    if [[ -d /usr/local/share/ca-certificates ]]; then
        cp --recursive /usr/local/share/ca-certificates "$root/usr/local/share/"
        chroot "$root" update-ca-certificates
    fi
    # What is gone in an hour need not reach the disk.
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe-io"
    # No package starts a service here.
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
    chmod +x "$root/usr/sbin/policy-rc.d"
}

# copy_own_settings ROOT: how this machine reaches its packages, without the settings that packages
# bring: those would ask whose are to be kept.
copy_own_settings() {
    local file
    for file in /etc/apt/apt.conf.d/*; do
        dpkg-query --search "$file" >/dev/null 2>&1 || cp "$file" "$1/etc/apt/apt.conf.d/"
    done
}

# in_system ROOT COMMAND...: nothing that it starts or mounts outlives the command.
in_system() {
    local root=$1 name environment=()
    shift
    for name in http_proxy https_proxy no_proxy HTTP_PROXY HTTPS_PROXY NO_PROXY; do
        [[ -z ${!name:-} ]] || environment+=("$name=${!name}")
    done
    unshare --mount --pid --fork --kill-child "$systems/enter.sh" "$root" \
        env --ignore-environment PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "${environment[@]}" "$@"
}
