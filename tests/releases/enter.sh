#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# enter.sh ROOT COMMAND...
#
# Runs a command in another system, in namespaces of mounts and processes made for it. The system
# becomes the root of all mounts: within a mere chroot nobody may make namespaces of their own, as
# the desktops of the tests do.
set -euo pipefail
root=$1
shift
mount --bind "$root" "$root"
cd "$root"
mount -t proc proc proc
mount --rbind /dev dev
mount -t tmpfs tmpfs dev/shm
mount --bind /sys sys
pivot_root . mnt
cd /
umount --lazy mnt
exec "$@"
