# SPDX-License-Identifier: MIT
"""A program that is nothing but its status item, and tells what becomes of it."""

import os
import subprocess
from pathlib import Path

from .paths import TREE
from .session import Session
from .waiting import wait_until

_PROGRAM = Path(
    os.environ.get("QUORVANE_TRAY_PROBE", TREE / "build" / "tests" / "quorvane-tray-probe")
)


class TrayProbe:
    """One run of the program, whose lines are read in their order."""

    def __init__(self, session: Session, **environment: str) -> None:
        self._process = session.start([str(_PROGRAM)], environment, stdin=subprocess.PIPE)
        self._log = session.root / "logs" / f"{_PROGRAM.name}.log"
        self._read = 0

    def order(self, what: str) -> None:
        """Tells the program to do something: show, hide, light, dark, frame."""
        assert self._process.stdin is not None
        self._process.stdin.write(f"{what}\n".encode())
        self._process.stdin.flush()

    def expect(self, *lines: str) -> None:
        """Waits until the next lines are these."""
        for line in lines:
            told = self._next()
            if told != line:
                raise AssertionError(f'"{told}" instead of "{line}"')

    def frame(self) -> tuple[int, int, int, int] | None:
        """The icon's place on the screen, as far as the program knows."""
        self.order("frame")
        word, *numbers = self._next().split()
        assert word == "frame"
        if numbers == ["none"]:
            return None
        left, top, width, height = map(int, numbers)
        return left, top, width, height

    def _next(self) -> str:
        lines = wait_until(lambda: self._lines()[self._read :], "a line of the program")
        self._read += 1
        return lines[0]

    def _lines(self) -> list[str]:
        """Those that are complete."""
        return self._log.read_text().split("\n")[:-1]
