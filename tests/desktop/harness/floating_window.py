# SPDX-License-Identifier: MIT
"""A small window of another program, at a place of the test's choice."""

from Xlib import X, Xatom
from Xlib.display import Display

from .session import Session


class FloatingWindow:
    """A dialog by its type, which no window manager tiles."""

    def __init__(self, session: Session) -> None:
        self._windows = session.windows
        self._display = Display(session.display)
        screen = self._display.screen()
        self._window = screen.root.create_window(
            0, 0, 200, 120, 0, X.CopyFromParent, background_pixel=screen.white_pixel
        )
        self._window.set_wm_name("elsewhere")
        self._window.set_wm_class("elsewhere", "Elsewhere")
        self._window.set_wm_hints(flags=1, input=1)
        self._window.change_property(
            self._display.get_atom("_NET_WM_WINDOW_TYPE"),
            Xatom.ATOM,
            32,
            [self._display.get_atom("_NET_WM_WINDOW_TYPE_DIALOG")],
        )
        self._window.map()
        self._display.sync()
        self._windows.wait(
            lambda: self._window.id in self._windows.shown(), "the floating window to show"
        )

    def show_at(self, x: int, y: int = 60) -> None:
        """Moves it there, and has the user work in it."""
        self._windows.move(self._window.id, x, y)
        self._windows.activate(self._window.id)
        self._windows.let_manager_catch_up()

    def close(self) -> None:
        """Ends it."""
        self._display.close()
