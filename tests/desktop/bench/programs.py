# SPDX-License-Identifier: MIT
"""The programs that are measured, and how they are started."""

import os
import shutil
import subprocess
import time
from pathlib import Path
from typing import NamedTuple

from harness.paths import TREE
from harness.private_session import PrivateSession

from .figures import FLOOR, PRODUCT

BUILD = Path(os.environ.get("QUORVANE_BENCH_BUILD", TREE / "build" / "release"))
"""Where what is measured was built."""

_NOT_OF_A_DESKTOP = ("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "FONTCONFIG_FILE")

_DEJAVU = """\
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
</fontconfig>
"""


class Program(NamedTuple):
    """A program by the name that the table has for it."""

    name: str
    command: tuple[str, ...]


BARE_START = Program(FLOOR, (str(BUILD / "quorvane-floor-start"),))
BARE_SHORTCUT = Program(FLOOR, (str(BUILD / "quorvane-floor-shortcut"),))
BARE_PANEL = Program(
    f"{FLOOR}, window like the panel", (str(BUILD / "quorvane-floor-shortcut"), "panel")
)
QUORVANE = Program(PRODUCT, (str(BUILD / "quorvane"),))
QUORVANE_HIDDEN = Program(PRODUCT, (str(BUILD / "quorvane"), "--hidden"))

_OTHERS = (
    Program("CopyQ", ("copyq", "--start-server", "show")),
    Program("KeePassXC", ("keepassxc",)),
    Program("GNOME Clocks", ("gnome-clocks",)),
)


def other_programs() -> list[Program]:
    """Those of comparable programs that this machine has."""
    return [program for program in _OTHERS if shutil.which(program.command[0])]


def environment(session: PrivateSession) -> dict[str, str]:
    """What a program of a user's desktop is told: nobody reads the screen to this user."""
    kept = {
        name: value for name, value in session.environment.items() if name not in _NOT_OF_A_DESKTOP
    }
    return kept | {"LANG": "en_US.UTF-8", "TZ": "America/New_York"}


def dejavu_alone(session: PrivateSession) -> dict[str, str]:
    """What makes a program of the session see one family of fonts only."""
    path = session.root / "dejavu.conf"
    path.write_text(_DEJAVU, encoding="ascii")
    return {"FONTCONFIG_FILE": str(path)}


def start(
    session: PrivateSession, program: Program, more: dict[str, str] | None = None
) -> tuple[subprocess.Popen[bytes], float]:
    """Starts a program; the second value is when."""
    told = environment(session) | (more or {})
    with (session.directory("logs") / "measured.log").open("ab") as log:
        began = time.perf_counter()
        process = subprocess.Popen(
            program.command, env=told, stdin=subprocess.DEVNULL, stdout=log, stderr=log
        )
    return process, began
