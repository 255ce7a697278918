# SPDX-License-Identifier: MIT
"""An X client whose window has another title each moment."""

import os

from Xlib import Xatom
from Xlib.display import Display


class RenamedWindow:
    """A window of the test's own."""

    def __init__(self, display: str) -> None:
        self.title = "before"
        self._display = Display(display)
        screen = self._display.screen()
        # Under Wayland only what is painted is shown.
        self._window = screen.root.create_window(
            0, 0, 200, 100, 0, screen.root_depth, background_pixel=screen.white_pixel
        )
        pid = self._display.intern_atom("_NET_WM_PID")
        self._window.change_property(pid, Xatom.CARDINAL, 32, [os.getpid()])
        self._window.set_wm_name(self.title)
        self._window.map()
        self._display.sync()

    def close(self) -> None:
        """Ends the connection, and with it the window."""
        self._display.close()

    def rename(self, times: int, length: int) -> None:
        """Gives it so many titles of so many letters."""
        for time in range(times):
            self.title = f"{time}".rjust(length, "x")
            self._window.set_wm_name(self.title)
            self._display.sync()
