#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check.sh SUITE ARCHIVE
#
# Builds the package of a source archive in a fresh Debian system that has nothing but what the
# package declares, and uses it in another one. By root, in namespaces of mounts and processes of
# its own: ./dev check packages.
set -euo pipefail
suite=$1
archive=$2
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
work=$(mktemp --directory "/var/tmp/quorvane-$suite.XXXXXX")
log=${archive%/*}/$suite.log

# Nothing is removed below a mount. What a service of the bus still holds goes with the namespaces.
clean_up() {
    awk -v work="$work/" 'index($2, work) == 1 { print $2 }' /proc/self/mounts | sort --reverse |
        xargs --no-run-if-empty umount --lazy
    rm --recursive --force --one-file-system "$work"
}
trap clean_up EXIT

say() {
    echo "$suite: $*" | tee --append "$log"
}

# Packages come from where this machine has its own.
make_system() {
    local root=$1 source
    # One of the two is enough.
    source=$(cat /etc/apt/sources.list.d/* /etc/apt/sources.list 2>/dev/null |
        sed -n 's/^URIs: *//p; s/^deb \(\[[^]]*\] \)\?\([^ ]*\) .*/\2/p' | head -n 1) || true
    debootstrap --variant=minbase --include=ca-certificates "$suite" "$root" "$source"
    rm --force "$root/etc/apt/sources.list"
    cp --recursive /etc/apt/sources.list.d /etc/apt/apt.conf.d "$root/etc/apt/"
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

mount_system() {
    mount -t proc proc "$1/proc"
    mount --bind /dev "$1/dev"
    mount --bind /dev/pts "$1/dev/pts"
    mount -t tmpfs tmpfs "$1/dev/shm"
}

# in_system ROOT COMMAND...
in_system() {
    local root=$1 name environment=()
    shift
    for name in http_proxy https_proxy no_proxy HTTP_PROXY HTTPS_PROXY NO_PROXY; do
        [[ -z ${!name:-} ]] || environment+=("$name=${!name}")
    done
    env --ignore-environment PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "${environment[@]}" chroot "$root" "$@"
}

build_package() {
    local root=$1 tree
    tree=/home/builder/$(basename "$archive" .tar.xz)
    in_system "$root" apt-get update
    in_system "$root" apt-get install --yes --no-install-recommends build-essential
    in_system "$root" useradd --create-home builder
    tar --directory "$root/home/builder" --extract --file "$archive"
    cp --recursive "$root$tree/packaging/debian" "$root$tree/debian"
    in_system "$root" apt-get build-dep --yes --no-install-recommends "$tree"
    in_system "$root" chown --recursive builder: /home/builder
    # Without a network: what is not declared is not there.
    in_system "$root" unshare --net runuser --user builder -- \
        bash -c "cd $tree && dpkg-buildpackage --build=binary --unsigned-changes --jobs=auto"
}

# A newer package with the same contents.
make_upgrade() {
    dpkg-deb --raw-extract "$1" "$work/newer"
    sed --in-place 's/^Version: .*/&+newer/' "$work/newer/DEBIAN/control"
    dpkg-deb --root-owner-group --build "$work/newer" "$2"
}

: >"$log"
say "a fresh system"
make_system "$work/plain" >>"$log" 2>&1
cp --archive "$work/plain" "$work/build"
mount_system "$work/plain"
mount_system "$work/build"
say "building with what the package declares"
build_package "$work/build" >>"$log" 2>&1 || { tail -n 30 "$log" && exit 1; }
mkdir "$work/plain/packages"
cp "$work"/build/home/builder/quorvane_*.deb "$work/plain/packages/quorvane.deb"
make_upgrade "$work/plain/packages/quorvane.deb" "$work/plain/packages/newer.deb" >>"$log"
cp "$here/use.sh" "$work/plain/packages/"
say "installing, using, upgrading, purging"
in_system "$work/plain" bash /packages/use.sh 2>>"$log" || { tail -n 30 "$log" && exit 1; }
say "done; the log is $log"
