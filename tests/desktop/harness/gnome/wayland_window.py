# SPDX-License-Identifier: MIT
"""A program of Wayland with a text field, and a clipboard owner."""

import sys
from pathlib import Path

from ..keys import Key
from ..offer import Offer
from ..waiting import wait_until
from .four_kinds import FOUR_KINDS
from .session import GnomeSession

_HERE = Path(__file__).parent


class WaylandWindow:
    """A window of GTK 4 with the keyboard; what stands in it goes into a file."""

    def __init__(self, session: GnomeSession, title: str = "Wayland window") -> None:
        self.title = title
        self._session = session
        self._typed = session.root / f"typed-in-{title}"
        self._typed.touch()
        program = [sys.executable, "-B", "-m", f"{__package__}.wayland_program"]
        self.process = session.start(
            [*program, title, str(self._typed)], {"PYTHONPATH": str(_HERE.parents[1])}
        )
        session.shell.bring_to_front(self.title)

    def wait_focused(self) -> None:
        """Waits until it has the keyboard."""
        self._session.shell.wait_focused(self.title)

    def copy(self) -> list[Offer]:
        """Puts four kinds of one thing onto the clipboard, the picture larger than a pipe."""
        self._session.hands.tap(Key.F5)
        return FOUR_KINDS

    def text(self) -> str:
        """What stands in the field."""
        return self._typed.read_text()

    def wait_text(self, text: str) -> None:
        """Waits until exactly this stands in the field."""
        wait_until(lambda: self.text() == text, f"{text!r}, not {self.text()!r}")
