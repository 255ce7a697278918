#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check.sh SUITE CHECKOUT LOG
#
# Builds the last commit of a checkout in a fresh Debian system, and runs all tests there, those of
# the heavy desktops included. By root, in namespaces of mounts and processes of its own:
# ./dev check releases.
set -euo pipefail
suite=$1
checkout=$2
log=$3
# shellcheck source=tests/releases/system.sh
. "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/system.sh"
root=$(mktemp --directory "/var/tmp/quorvane-$suite.XXXXXX")
trap 'rm --recursive --force --one-file-system "$root"' EXIT

say() {
    echo "$suite: $*" | tee --append "$log"
}

# step COMMAND...: tells what a failed test wrote, and of the others their number.
step() {
    say "./dev $*"
    in_system "$root" /root/quorvane/dev "$@" >>"$log" 2>&1 || { tail -n 200 "$log" && exit 1; }
    say "$(grep --extended-regexp '^[0-9]+% tests passed' "$log" | tail -n 1)"
}

: >"$log"
say "a fresh system"
make_system "$suite" "$root" >>"$log" 2>&1
git clone --quiet --no-hardlinks "$checkout" "$root/root/quorvane"
step test
step check desktops
say "done; the log is $log"
