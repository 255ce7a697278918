# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154 # read by dev, whose functions these call
#
# The archive of the sources, the Debian packages, and the systems that they are tried on.

project_version() {
    sed -nE 's/^project\(quorvane VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt
}

# make_archive COMMIT FOLDER: the sources of a commit, the same bytes whoever makes them where.
make_archive() {
    local name
    name=quorvane-$(project_version)
    git rev-parse --quiet --verify "$1^{commit}" >/dev/null || fail "the tree is no git checkout"
    mkdir -p "$2"
    git -c tar.umask=0022 archive --format=tar --prefix="$name/" "$1" |
        xz --threads=1 -9 >"$2/$name.tar.xz"
}

# make_package COMMIT FOLDER
make_package() {
    local folder=$2 name
    name=quorvane-$(project_version)
    rm -rf "$folder"
    make_archive "$1" "$folder"
    tar --directory "$folder" --extract --file "$folder/$name.tar.xz"
    mv "$folder/$name.tar.xz" "$folder/quorvane_${name#*-}.orig.tar.xz"
    cp -r "$folder/$name/packaging/debian" "$folder/$name/debian"
    (cd "$folder/$name" && dpkg-buildpackage --unsigned-source --unsigned-changes --jobs=auto)
    tests/packages/hardened.sh "$folder/$name/debian/quorvane/usr/bin/quorvane"
    tests/packages/lint.sh "$folder"/*.changes
    rm -rf "${folder:?}/$name"
}

package() {
    need build package
    local changed
    # The tree as it is, whether or not it is committed.
    changed=$(git stash create)
    make_package "${changed:-HEAD}" build/package
    ls build/package/*.deb
}

release() {
    local wanted=${1:-}
    [[ $wanted == --archive ]] || need build package
    rm -rf build/dist
    [[ -z $(git status --porcelain) ]] || fail "what is not committed would be missing from a release"
    make_archive HEAD build/dist
    case $wanted in
    '')
        make_package HEAD build/package
        cp build/package/* build/dist
        ;;
    --archive) ;;
    *) fail "release knows no option $wanted" ;;
    esac
    (cd build/dist && sha256sum ./* >SHA256SUMS && cat SHA256SUMS)
}

check_packages() {
    need roots
    local suite suites=("$@")
    ((EUID == 0)) || fail "fresh systems are made by root alone"
    ((${#suites[@]} > 0)) || suites=(bookworm trixie)
    make_archive HEAD build/roots
    for suite in "${suites[@]}"; do
        unshare --mount --pid --fork --kill-child \
            tests/packages/check.sh "$suite" "$PWD/build/roots/quorvane-$(project_version).tar.xz"
    done
}

check_releases() {
    need roots
    local suite suites=("$@")
    ((EUID == 0)) || fail "fresh systems are made by root alone"
    ((${#suites[@]} > 0)) || suites=(trixie)
    mkdir -p build/roots
    for suite in "${suites[@]}"; do
        unshare --mount --pid --fork --kill-child \
            tests/releases/check.sh "$suite" "$PWD" "$PWD/build/roots/$suite-tests.log"
    done
}
