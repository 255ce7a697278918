# SPDX-License-Identifier: MIT
"""The keyboard as the X server of a compositor gives it to its windows."""

from Xlib import X
from Xlib.display import Display
from Xlib.error import XError
from Xlib.xobject.drawable import Window


class XFocus:
    """Follows one X server, from the first question on: until then it need not run.

    A compositor tells that a window of X11 is active while the X server has yet to be told, and keys
    that come to it before go nowhere.
    """

    def __init__(self, display: str) -> None:
        self._name = display
        self._display: Display | None = None

    def close(self) -> None:
        """Ends the connection."""
        if self._display:
            self._display.close()

    def is_at(self, window: int) -> bool:
        """Whether a window, or one inside of it, has the keyboard."""
        self._display = self._display or Display(self._name)
        focus = self._display.get_input_focus().focus
        try:
            while isinstance(focus, Window) and focus.id != X.NONE:
                if focus.id == window:
                    return True
                focus = focus.query_tree().parent
        except XError:
            pass  # it went while it was looked at
        return False
