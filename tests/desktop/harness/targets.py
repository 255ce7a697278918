# SPDX-License-Identifier: MIT
"""Foreign programs that texts are inserted into."""

import sys
from abc import ABC, abstractmethod
from collections.abc import Mapping, Sequence
from pathlib import Path

from .private_session import PrivateSession
from .waiting import wait_until

_HERE = Path(__file__).parent


class Target(ABC):
    """A program with an active window, and a way to read what arrived in it."""

    def __init__(
        self,
        session: PrivateSession,
        command: Sequence[str],
        environment: Mapping[str, str] | None = None,
        title: str | None = None,
    ) -> None:
        self._session = session
        self.process = session.start(command, environment)
        windows = session.windows
        self.window = windows.wait(
            lambda: windows.of_process(self.process.pid, title), f"a window of {command[0]}"
        )
        self.focus()

    @abstractmethod
    def text(self) -> str:
        """Everything that has arrived."""

    def focus(self) -> None:
        """Makes the program the one the user works in."""
        self._session.windows.activate(self.window)

    def wait_active(self) -> None:
        """Waits until the program has the keyboard again."""
        windows = self._session.windows
        windows.wait(lambda: windows.active() == self.window, "the focus to come back")

    def wait_text(self, *texts: str) -> None:
        """Waits until exactly one of these texts has arrived."""
        wait_until(lambda: self.text() in texts, f"{texts} to arrive, not {self.text()!r}")


class Editor(Target):
    """An editor whose text is read out of its process by AT-SPI."""

    def __init__(self, session: PrivateSession, command: Sequence[str]) -> None:
        super().__init__(session, command)
        self._editor = session.accessibility.application(self.process.pid).find_editor()

    def text(self) -> str:
        return self._editor.text


class Terminal(Target):
    """xterm, whose terminal line goes into a file untouched.

    It may bear the class of another terminal, and is taken for that one then.
    """

    def __init__(self, session: PrivateSession, name: str = "XTerm") -> None:
        self._typed = session.root / "typed"
        self._typed.touch()
        command = ["sh", "-c", 'stty raw -echo; exec cat >"$0"', str(self._typed)]
        super().__init__(session, ["xterm", "-name", name.lower(), "-class", name, "-e", *command])

    def text(self) -> str:
        return self._typed.read_text()


class DialogField(Target):
    """The field of a dialog, over a window of its program that fills the screen."""

    def __init__(self, session: PrivateSession) -> None:
        self._typed = session.root / "typed-in-dialog"
        self._typed.touch()
        program = [sys.executable, "-B", "-m", f"{__package__}.dialog_program", str(self._typed)]
        super().__init__(session, program, {"PYTHONPATH": str(_HERE.parent)}, title="dialog")

    def text(self) -> str:
        return self._typed.read_text()


EDITORS = {
    "mousepad": ["mousepad", "--disable-server"],
    "featherpad": ["featherpad", "--standalone"],
}
"""A GTK editor and a Qt editor, by name, with the command that starts a process of its own."""
