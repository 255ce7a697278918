# SPDX-License-Identifier: MIT
"""Foreign programs that a session starts once and then types into again and again."""

from abc import ABC, abstractmethod
from collections.abc import Callable, Mapping, Sequence
from pathlib import Path

from harness.accessible import Accessible, State
from harness.message_bus import BusError
from harness.paths import TEXT_FIELD
from harness.session import Session
from harness.waiting import Timeout, wait_until


class Program(ABC):
    """A program with one window, and a way to read what arrived in it."""

    line_end = "\n"
    """What a line of an inserted text ends with where it arrives."""
    by_control_v: str | None = None
    """What Ctrl+V types, in a program that has other keys for pasting."""
    forgets_locks = False
    """Whether it forgets group and locked modifiers when another keyboard has typed."""

    def __init__(
        self,
        session: Session,
        command: Sequence[str],
        window_class: str,
        environment: Mapping[str, str] | None = None,
    ) -> None:
        self._session = session
        self._class = window_class
        self.process = session.start(command, environment)
        self.window = self._session.windows.wait(
            self.find_window, f"a window of {command[0]}", seconds=90
        )

    def find_window(self) -> int | None:
        """The window that texts are typed into, while it shows."""
        windows = self._session.windows
        for window in windows.shown():
            names = windows.wm_class(window) or ()
            if any(self._class in name.lower() for name in names):
                return window
        return None

    @abstractmethod
    def text(self) -> str | None:
        """Everything that has arrived; nothing while the program cannot say."""

    def held_text(self) -> str:
        """Everything that has arrived, as soon as the program says it."""
        wait_until(lambda: self.text() is not None, f"an answer from {self._class}")
        return self.text() or ""

    def focus(self) -> None:
        """Makes the program the one the user works in."""
        windows = self._session.windows
        windows.activate(self.window)
        # It may have been active before: a request that is still on its way would take the focus
        # from the panel that shows next.
        windows.let_manager_catch_up()

    def wait_active(self) -> None:
        """Waits until the program has the keyboard again."""
        windows = self._session.windows
        windows.wait(lambda: windows.active() == self.window, "the focus to come back")

    def wait_text(self, *texts: str) -> None:
        """Waits until exactly one of these texts has arrived."""
        try:
            wait_until(lambda: self.text() in texts, f"the text in {self._class}", interval=0.005)
        except Timeout as timeout:
            timeout.add_note(f"Expected: {texts}\nArrived:  {self.text()!r}")
            raise

    def stop(self) -> None:
        """Ends the program."""
        self._session.stop(self.process)


class Editor(Program):
    """An editor whose text is read out of its process by AT-SPI."""

    def __init__(self, session: Session, command: Sequence[str], window_class: str) -> None:
        super().__init__(session, command, window_class)
        application = session.accessibility.application(self.process.pid)
        self._editor: Accessible = wait_until(
            lambda: _editable(application), f"the text of {window_class}", seconds=90, interval=0.1
        )

    def text(self) -> str | None:
        try:
            return self._editor.text
        except BusError:
            return None  # too busy to answer


def _editable(parent: Accessible) -> Accessible | None:
    # Not every toolkit says of its texts that they show.
    try:
        for child in parent.children():
            if child.role in ("text", "text box") and child.has(State.EDITABLE):
                return child
            if found := _editable(child):
                return found
    except BusError:
        pass  # it went while it was looked at
    return None


class Field(Editor):
    """The tests' own program, whose windows are told by their titles."""

    def __init__(self, session: Session, title: str, *options: str) -> None:
        self._title = title
        super().__init__(session, [str(TEXT_FIELD), *options], "quorvane-text-field")

    def find_window(self) -> int | None:
        return self._session.windows.of_process(self.process.pid, self._title)


class Emacs(Program):
    """Writes its buffer into a file after every change."""

    by_control_v = ""  # it scrolls

    def __init__(self, session: Session) -> None:
        self._written = session.directory("typed") / "emacs"
        hook = (
            "(progn (set-language-environment \"UTF-8\") (switch-to-buffer \"soak\")"
            " (setq make-backup-files nil coding-system-for-write 'utf-8-unix)"
            # It would throw away the keys that come after a command that failed.
            " (setq command-error-function #'ignore)"
            " (add-hook 'after-change-functions (lambda (&rest _)"
            f' (write-region (point-min) (point-max) "{self._written}" nil 0)) nil t)'
            # Once it waits for keys.
            f' (run-with-idle-timer 0 nil (lambda () (write-region "" nil "{self._written}"))))'
        )
        super().__init__(session, ["emacs", "--quick", "--eval", hook], "emacs")
        wait_until(self._written.exists, "Emacs to wait for keys", seconds=90)

    def text(self) -> str | None:
        return self._written.read_bytes().decode(errors="replace")


class Qt5Editor(Editor):
    """An editor that forgets what is locked: Qt 5 does when another keyboard has typed."""

    forgets_locks = True


def write_file(path: Path, content: str) -> None:
    """Writes a program's settings before it starts."""
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(content)


PROGRAMS: dict[str, Callable[[Session], Program]] = {
    "mousepad": lambda session: Editor(session, ["mousepad", "--disable-server"], "mousepad"),
    "gnome-text-editor": lambda session: Editor(
        session, ["gnome-text-editor", "--standalone"], "text-editor"
    ),
    "featherpad": lambda session: Qt5Editor(session, ["featherpad", "--standalone"], "featherpad"),
    "field": lambda session: Field(session, "Text field"),
    "dialog": lambda session: Field(session, "Dialog", "--dialog"),
    "emacs": Emacs,
}
"""How each target is started, but for terminals, browsers and the office."""
