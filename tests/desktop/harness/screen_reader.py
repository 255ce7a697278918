# SPDX-License-Identifier: MIT
"""Orca, as a user runs it, with a speech server that only takes notes."""

import json
import os
from pathlib import Path

from .session import Session
from .speech_server import SpeechServer

_SETTINGS = {
    "general": {},
    "pronunciations": {},
    "keybindings": {},
    "profiles": {
        "default": {
            "profile": ["Default", "default"],
            # What the keys themselves are called is none of the program's doing.
            "enableKeyEcho": False,
        }
    },
}


class ScreenReader:
    """A run of Orca in a session; start it before the program that it is to read."""

    def __init__(self, session: Session) -> None:
        self._write_settings(session.directory("data") / "orca")
        socket = session.directory("speech") / "socket"
        self._speech = SpeechServer(socket)
        search_path = f"{self._nobody_else(session)}{os.pathsep}{os.environ['PATH']}"
        session.start(
            ["orca"],
            {
                "SPEECHD_ADDRESS": f"unix_socket:{socket}",
                "PATH": search_path,
                "LANG": "en_US.UTF-8",
            },
        )
        self._speech.wait_for("Screen reader on")

    def close(self) -> None:
        """Listens no longer; the session ends the program."""
        self._speech.close()

    def wait_for(self, fragment: str) -> list[str]:
        """Waits for a text that contains the fragment.

        Returns that text and those that came before it since the last answer, in their order.
        """
        return self._speech.wait_for(fragment)

    def forget(self) -> None:
        """Leaves out of the next answer what was said so far."""
        self._speech.forget()

    @staticmethod
    def _write_settings(directory: Path) -> None:
        directory.mkdir()
        (directory / "user-settings.conf").write_text(json.dumps(_SETTINGS))

    @staticmethod
    def _nobody_else(session: Session) -> Path:
        """Where a pgrep lies that finds nothing.

        Orca does not start beside another one of the same user, which it looks for with pgrep: the
        user's own may run, on a display that the session has nothing to do with.
        """
        directory = session.directory("programs")
        (directory / "pgrep").symlink_to("/bin/false")
        return directory
