# SPDX-License-Identifier: MIT
"""A sandbox as Flatpak's is to the programs in it: the file that tells them so."""

from pathlib import Path

from .private_session import PrivateSession


def in_flatpak(session: PrivateSession, command: list[str]) -> list[str]:
    """The command on a root of its own, that shares all with the system's but for the one file."""
    note = session.root / "flatpak-info"
    note.write_text("[Application]\nname=org.quorvane.Quorvane\n")
    bubblewrap = ["bwrap", "--die-with-parent", "--ro-bind", str(note), "/.flatpak-info"]
    for entry in sorted(Path("/").iterdir()):
        if entry.is_symlink():
            bubblewrap += ["--symlink", str(entry.readlink()), str(entry)]
        elif entry.is_dir():
            bubblewrap += ["--dev-bind", str(entry), str(entry)]
    return [*bubblewrap, "--", *command]
