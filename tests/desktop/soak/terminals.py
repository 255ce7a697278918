# SPDX-License-Identifier: MIT
"""Terminals: those of every soak, and more that are tried when they are asked for."""

from collections.abc import Callable, Sequence

from harness.session import Session
from harness.waiting import wait_until

from .programs import Program, write_file


class Terminal(Program):
    """A terminal whose line goes into a file untouched."""

    line_end = "\r"
    by_control_v = "\x16"

    def __init__(self, session: Session, command: Sequence[str], window_class: str) -> None:
        self._typed = session.directory("typed") / window_class
        # That of an earlier one would tell of a shell that has not started yet.
        self._typed.unlink(missing_ok=True)
        script = self._typed.with_suffix(".sh")
        script.write_text(f'#!/bin/sh\nstty raw -echo\nexec cat >"{self._typed}"\n')
        script.chmod(0o700)
        super().__init__(session, [*command, str(script)], window_class)
        wait_until(self._typed.exists, f"the shell in {window_class}", seconds=90)

    def text(self) -> str | None:
        return self._typed.read_bytes().decode(errors="replace")


class Qt5Terminal(Terminal):
    """A terminal that forgets what is locked: Qt 5 does when another keyboard has typed."""

    forgets_locks = True


def _xfce_terminal(session: Session) -> Program:
    # It asks before it pastes several lines.
    settings = session.directory("config") / "xfce4" / "terminal" / "terminalrc"
    write_file(settings, "[Configuration]\nMiscShowUnsafePasteDialog=FALSE\n")
    return Terminal(session, ["xfce4-terminal", "--disable-server", "-x"], "xfce4-terminal")


def _qterminal(session: Session) -> Program:
    settings = session.directory("config") / "qterminal.org" / "qterminal.ini"
    write_file(settings, "[General]\nConfirmMultilinePaste=false\nAskOnExit=false\n")
    return Qt5Terminal(session, ["qterminal", "-e"], "qterminal")


def _starter(command: str, window_class: str) -> Callable[[Session], Program]:
    return lambda session: Terminal(session, command.split(), window_class)


TERMINALS = {
    "xterm": _starter("xterm -e", "xterm"),
    "xfce4-terminal": _xfce_terminal,
    "qterminal": _qterminal,
}
"""How the terminals of every soak are started."""

MORE_TERMINALS = {
    # Without the extension that asks before it pastes several lines.
    "urxvt": _starter("urxvt -pe -confirm-paste -e", "urxvt"),
    "st": _starter("st -e", "st-256color"),
    "konsole": lambda session: Qt5Terminal(
        session, ["konsole", "--separate", "-e"], "konsole"
    ),
    "kitty": _starter("kitty --config NONE -o confirm_os_window_close=0", "kitty"),
    "alacritty": _starter("alacritty -e", "alacritty"),
    "terminator": _starter("dbus-run-session -- terminator -u -x", "terminator"),
    "tilix": _starter("tilix --new-process -e", "tilix"),
    "mate-terminal": _starter("mate-terminal --disable-factory -x", "mate-terminal"),
    "lxterminal": _starter("lxterminal --no-remote -e", "lxterminal"),
    "gnome-terminal": _starter(
        "dbus-run-session -- gnome-terminal --wait --", "gnome-terminal-server"
    ),
    "sakura": _starter("sakura -x", "sakura"),
    "cool-retro-term": lambda session: Qt5Terminal(
        session, ["cool-retro-term", "-e"], "cool-retro-term"
    ),
}
"""The same for those that paste by a row of their own, to show that the row is needed."""
