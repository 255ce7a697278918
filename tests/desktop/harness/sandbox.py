# SPDX-License-Identifier: MIT
"""Runs a command where a whole desktop can be started beside the user's own.

    python3 -m harness.sandbox --needs gnome-shell,Xwayland COMMAND...

Its processes, its sockets (those of X included), its /tmp and its shared memory are its own, and
all of it ends with the command. Compositors refuse root: root's command runs under the number of
the user nobody, with root's files.
"""

import argparse
import os
import pwd
import shutil
import sys

from .paths import PROGRAM, TREE

_SYSTEM_PROGRAMS = "/usr/libexec"  # what desktops start by themselves, and is not on PATH


def missing(programs: list[str]) -> list[str]:
    """Those of the programs that the machine does not have."""
    path = os.pathsep.join([os.environ.get("PATH", os.defpath), _SYSTEM_PROGRAMS])
    return [program for program in programs if not shutil.which(program, path=path)]


def wrapped(command: list[str]) -> list[str]:
    """The command with what makes its surroundings."""
    bubblewrap = ["bwrap", "--dev-bind", "/", "/", "--proc", "/proc"]
    bubblewrap += ["--tmpfs", "/tmp", "--perms", "1777", "--tmpfs", "/tmp/.X11-unix"]
    for directory in {TREE, PROGRAM.parent}:
        if directory.is_relative_to("/tmp"):
            bubblewrap += ["--bind", str(directory), str(directory)]
    bubblewrap += ["--unshare-pid", "--unshare-ipc", "--unshare-net", "--die-with-parent"]
    if os.geteuid() == 0:
        nobody = pwd.getpwnam("nobody")
        bubblewrap += ["--unshare-user", "--uid", str(nobody.pw_uid), "--gid", str(nobody.pw_gid)]
    return [*bubblewrap, "--chdir", os.getcwd(), "--", *command]


def main() -> None:
    """Becomes the command, or says what the machine lacks and fails."""
    parser = argparse.ArgumentParser()
    parser.add_argument("--needs", default="", help="programs, separated by commas")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    options = parser.parse_args()
    if lacking := missing(["bwrap", *filter(None, options.needs.split(","))]):
        sys.exit(f"This machine lacks {', '.join(lacking)}")
    command = wrapped(options.command)
    os.execvp(command[0], command)


if __name__ == "__main__":
    main()
