# SPDX-License-Identifier: MIT
"""A terminal of Wayland, and what was typed into it."""

from ..waiting import wait_until
from .session import GnomeSession


class Terminal:
    """foot with the keyboard; what arrives at its terminal line goes into a file untouched."""

    title = "terminal"

    def __init__(self, session: GnomeSession) -> None:
        self._shell = session.shell
        self._typed = session.root / "typed-in-terminal"
        self._typed.touch()
        command = ["sh", "-c", 'stty raw -echo; exec cat >"$0"', str(self._typed)]
        session.start(["foot", "--title", self.title, *command])
        session.shell.bring_to_front(self.title)

    def wait_focused(self) -> None:
        """Waits until it has the keyboard."""
        self._shell.wait_focused(self.title)

    def text(self) -> str:
        """Everything that has arrived."""
        return self._typed.read_text()

    def wait_text(self, text: str) -> None:
        """Waits until exactly this has arrived."""
        wait_until(lambda: self.text() == text, f"{text!r} to arrive, not {self.text()!r}")
