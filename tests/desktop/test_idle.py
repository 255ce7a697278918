# SPDX-License-Identifier: MIT
"""A program that nobody uses takes no time from anybody, and has read no more than it needs.

QUORVANE_LONG_LIFE=whole leaves it alone for longer than Qt keeps what has not been used.
"""

import os
import time
from pathlib import Path

from harness.case import DesktopCase
from harness.keys import SHORTCUT
from harness.quorvane import Quorvane
from harness.waiting import wait_until
from Xlib.display import Display

_MOMENT = 2.0  # seconds
_LONG = 35.0
_IS_WHOLE = os.environ.get("QUORVANE_LONG_LIFE") == "whole"


class Idle(DesktopCase):
    """Left alone, hidden or shown."""

    def test_it_sleeps_while_its_panel_is_left_alone_and_while_it_is_hidden(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.expect_asleep(quorvane)
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        self.expect_asleep(quorvane)

    def test_it_loads_no_plugin_for_pictures_of_others(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.expect_asleep(quorvane)
        mapped = Path(f"/proc/{quorvane.process.pid}/maps").read_text().split()
        plugins = {Path(name).name for name in mapped if "/qt6/plugins/" in name}
        self.assertLessEqual({"libqxcb.so"}, plugins)
        pictures = {Path(name).name for name in mapped if "/imageformats/" in name}
        self.assertEqual(pictures, set())

    def expect_asleep(self, quorvane: Quorvane) -> None:
        """Waits until the program has come to rest, which it keeps, while the X server works."""
        display = Display(self.session.display)
        self.addCleanup(display.close)

        def rests(seconds: float) -> bool:
            before = _wakeups(quorvane.process.pid)
            end = time.monotonic() + seconds
            while time.monotonic() < end:
                display.sync()
            return _wakeups(quorvane.process.pid) == before

        wait_until(lambda: rests(_MOMENT), "a rest without a wakeup", seconds=30)
        if _IS_WHOLE:
            self.assertTrue(rests(_LONG), "Something woke the program.")


def _wakeups(pid: int) -> dict[str, str]:
    """How often each thread of a process has waited and went on."""
    threads = {}
    for thread in Path(f"/proc/{pid}/task").iterdir():
        lines = (thread / "status").read_text().splitlines()
        threads[thread.name] = next(line for line in lines if line.startswith("voluntary"))
    return threads
