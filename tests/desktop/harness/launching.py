# SPDX-License-Identifier: MIT
"""How a user opens programs: by a launcher's window that has the keyboard."""

import subprocess
import sys
from pathlib import Path

from .private_session import PrivateSession

_LAUNCHER = Path(__file__).with_name("launcher.py")


def open_launcher(session: PrivateSession, *arguments: str) -> subprocess.Popen[bytes]:
    """A launcher in front, whose Return key opens what a desktop file and an action name."""
    process = session.start([sys.executable, str(_LAUNCHER), *arguments])
    windows = session.windows
    window = windows.wait(
        lambda: windows.of_process(process.pid), "the launcher's window"
    )
    windows.activate(window)
    return process
