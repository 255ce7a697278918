#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check.sh SUITE ARCHIVE
#
# Builds the package of a source archive in a fresh Debian system that has nothing but what the
# package declares, has the system's lintian read it, and uses it in another one. By root, in
# namespaces of mounts and processes of its own: ./dev check packages.
set -euo pipefail
suite=$1
archive=$2
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/releases/system.sh
. "$here/../releases/system.sh"
work=$(mktemp --directory "/var/tmp/quorvane-$suite.XXXXXX")
log=${archive%/*}/$suite.log

trap 'rm --recursive --force --one-file-system "$work"' EXIT

say() {
    echo "$suite: $*" | tee --append "$log"
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

# Each release has a lintian of its own.
lint_package() {
    local root=$1
    in_system "$root" apt-get install --yes --no-install-recommends lintian
    cp "$here/lint.sh" "$root/home/builder/"
    in_system "$root" runuser --user builder -- bash -c "cd && ./lint.sh ./*.changes"
}

# A newer package with the same contents.
make_upgrade() {
    dpkg-deb --raw-extract "$1" "$work/newer"
    sed --in-place 's/^Version: .*/&+newer/' "$work/newer/DEBIAN/control"
    dpkg-deb --root-owner-group --build "$work/newer" "$2"
}

: >"$log"
say "a fresh system"
make_system "$suite" "$work/plain" >>"$log" 2>&1
cp --archive "$work/plain" "$work/build"
say "building with what the package declares"
build_package "$work/build" >>"$log" 2>&1 || { tail -n 30 "$log" && exit 1; }
say "reading it"
lint_package "$work/build" >>"$log" 2>&1 || { tail -n 30 "$log" && exit 1; }
mkdir "$work/plain/packages"
cp "$work"/build/home/builder/quorvane_*.deb "$work/plain/packages/quorvane.deb"
make_upgrade "$work/plain/packages/quorvane.deb" "$work/plain/packages/newer.deb" >>"$log"
cp "$here/use.sh" "$work/plain/packages/"
say "installing, using, upgrading, purging"
in_system "$work/plain" bash /packages/use.sh 2>>"$log" || { tail -n 30 "$log" && exit 1; }
say "done; the log is $log"
