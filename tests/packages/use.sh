#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# In a fresh system: installs /packages/quorvane.deb, uses it as a user of a virtual display,
# upgrades to /packages/newer.deb while it runs, and purges it. See check.sh.
set -euo pipefail
name=org.quorvane.Quorvane
bus=/tmp/session/bus

fail() {
    echo "failed: $*"
    exit 1
}

# What still runs would keep the system's mounts busy.
end_session() {
    local running
    running=$(jobs -p)
    # shellcheck disable=SC2086 # numbers
    [[ -z $running ]] || kill $running 2>/dev/null || true
    wait
}
trap end_session EXIT

# eventually WHAT COMMAND...: asks until the command succeeds.
eventually() {
    local what=$1 attempt
    shift
    for ((attempt = 0; attempt < 300; ++attempt)); do
        "$@" && return 0
        sleep 0.1
    done
    fail "$what"
}

as_user() {
    runuser --user someone -- env --chdir=/home/someone HOME=/home/someone LANG=C.UTF-8 \
        DISPLAY=:7 DBUS_SESSION_BUS_ADDRESS="unix:path=$bus" XDG_RUNTIME_DIR=/tmp/session "$@"
}

shows() { as_user xwininfo -name "$1" 2>/dev/null | grep --quiet IsViewable; }
hides() { ! shows "$1"; }
action() { as_user gapplication action "$name" "$1"; }
has_name() { as_user gdbus call --session --dest org.freedesktop.DBus \
    --object-path /org/freedesktop/DBus --method org.freedesktop.DBus.NameHasOwner "$name" |
    grep --quiet true; }
has_no_name() { ! has_name; }
has_copied() { as_user xclip -out -selection clipboard 2>/dev/null | grep --quiet "$(date +%Y)"; }

# install_package PACKAGE...
install_package() {
    apt-get install --yes --no-install-recommends "$@" >&2
}

start_session() {
    install_package xvfb dbus-daemon x11-utils xclip
    useradd --create-home someone
    install --directory --owner someone --mode 700 /tmp/session
    as_user Xvfb :7 -nolisten tcp &
    as_user dbus-daemon --session --nofork --address="unix:path=$bus" &
    eventually "the display" as_user xdpyinfo >/dev/null 2>&1
    eventually "the bus" test -S "$bus"
}

apt-get update >&2
install_package /packages/quorvane.deb
ldd /usr/bin/quorvane | grep "not found" && fail "a library that is not declared"
echo "installed: $(dpkg-query --show quorvane)"

start_session
as_user quorvane &
eventually "the panel" shows Quorvane
action copy
eventually "the text on the clipboard" has_copied
echo "copied: $(as_user xclip -out -selection clipboard)"
action toggle
eventually "the panel hidden" hides Quorvane
as_user gapplication launch "$name"
eventually "the panel shown by the menu's entry" shows Quorvane

install_package /packages/newer.deb
echo "upgraded: $(dpkg-query --show quorvane)"
action toggle
eventually "the answer of the one that runs" hides Quorvane
action quit
eventually "its end" has_no_name
action preferences
eventually "the preferences of a program that the bus starts" shows "Quorvane Preferences"
hides Quorvane || fail "the panel shows beside the preferences"
action quit
eventually "its end" has_no_name

apt-get purge --yes quorvane >&2
left=$(find / -xdev -iname '*quorvane*' -not -path '/home/*' -not -path '/packages/*' \
    -not -path '/proc/*' -not -path '/tmp/*')
[[ -z $left ]] || fail "left behind: $left"
echo "purged: nothing is left outside the user's folder"
