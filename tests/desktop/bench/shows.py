# SPDX-License-Identifier: MIT
"""From the press of the shortcut until the window is mapped, painted and active."""

import time

from Xlib import X
from Xlib.display import Display

from harness.keys import SHORTCUT
from harness.session import Session

from .figures import Figures
from .observer import Observer, Sight
from .process import end, wait_quiet
from .programs import Program, start

_MILLI = 1000


class Shows:
    """Shows and hides the windows of programs that were started without one."""

    def __init__(self, session: Session, figures: Figures) -> None:
        self._session = session
        self._figures = figures
        self._observer = Observer(session.display)
        self._keyboard = Display(session.display)

    def close(self) -> None:
        """Ends the connections."""
        self._observer.close()
        self._keyboard.close()

    def measure(self, programs: list[Program], processes: int, shows: int) -> None:
        """The first show of each process counts by itself."""
        for _ in range(processes):
            for program in programs:
                process, _ = start(self._session, program)
                wait_quiet(process.pid)
                self._show(program, process.pid, "first show")
                for _ in range(shows):
                    self._show(program, process.pid, "show")
                end(process.pid)
                process.wait(10)

    def _show(self, program: Program, pid: int, measure: str) -> None:
        began = self._press()
        seen = self._observer.wait_shown()
        for stage in Sight._fields:
            sample = _MILLI * (getattr(seen, stage) - began)
            self._figures.add(f"{measure}: {stage}", program.name, "ms", sample)
        wait_quiet(pid)
        self._press()
        self._observer.wait_hidden()
        wait_quiet(pid)

    def _press(self) -> float:
        *modifiers, key = SHORTCUT
        for modifier in modifiers:
            self._keyboard.xtest_fake_input(X.KeyPress, modifier)
        self._keyboard.sync()
        began = time.perf_counter()
        self._keyboard.xtest_fake_input(X.KeyPress, key)
        self._keyboard.xtest_fake_input(X.KeyRelease, key)
        for modifier in reversed(modifiers):
            self._keyboard.xtest_fake_input(X.KeyRelease, modifier)
        self._keyboard.flush()
        return began
