# SPDX-License-Identifier: MIT
"""Another program that took Quorvane's shortcut first."""

from Xlib import X
from Xlib.display import Display

from .keys import Key
from .session import Session
from .waiting import wait_until


class KeyHolder:
    """Holds the shortcut by a passive grab on a connection of its own."""

    def __init__(self, session: Session) -> None:
        self._display = Display(session.display)
        modifiers = X.ControlMask | X.ShiftMask | X.Mod4Mask
        root = self._display.screen().root
        root.grab_key(Key.D, modifiers, False, X.GrabModeAsync, X.GrabModeAsync)
        self._display.sync()

    def close(self) -> None:
        """Lets the shortcut go."""
        self._display.close()

    def wait_press(self) -> None:
        """Waits until a press of the shortcut has come here."""
        wait_until(self._take_press, "the press at the program that holds the key")

    def _take_press(self) -> bool:
        for _ in range(self._display.pending_events()):
            if self._display.next_event().type == X.KeyPress:
                return True
        return False
