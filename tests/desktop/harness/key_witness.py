# SPDX-License-Identifier: MIT
"""An application's window that writes down every key that reaches it."""

from typing import NamedTuple

from Xlib import X, Xutil
from Xlib.display import Display

from .keys import Key
from .session import Session
from .waiting import wait_until


class Stroke(NamedTuple):
    """One key event: the key, and whether it went down."""

    key: int
    down: bool


class KeyWitness:
    """A window of this process, on a connection of its own."""

    def __init__(self, session: Session) -> None:
        self._session = session
        self._display = Display(session.display)
        self._strokes: list[Stroke] = []
        screen = self._display.screen()
        window = screen.root.create_window(
            0,
            0,
            300,
            200,
            0,
            X.CopyFromParent,
            background_pixel=screen.white_pixel,
            event_mask=X.KeyPressMask | X.KeyReleaseMask,
        )
        window.set_wm_name("witness")
        window.set_wm_class("witness", "Witness")
        window.set_wm_hints(flags=Xutil.InputHint, input=1)
        window.map()
        self._display.sync()
        self.window = window.id
        session.windows.wait(lambda: self.window in session.windows.shown(), "the witness")
        self.focus()

    def close(self) -> None:
        """Closes the window."""
        self._display.close()

    def focus(self) -> None:
        """Makes the witness the window the user works in."""
        self._session.windows.activate(self.window)

    def wait_active(self) -> None:
        """Waits until the witness has the keyboard."""
        windows = self._session.windows
        windows.wait(lambda: windows.active() == self.window, "the witness to be active")

    def strokes(self) -> list[Stroke]:
        """All that has arrived so far, in order."""
        for _ in range(self._display.pending_events()):
            event = self._display.next_event()
            if event.type in (X.KeyPress, X.KeyRelease):
                self._strokes.append(Stroke(event.detail, event.type == X.KeyPress))
        return self._strokes[:]

    def of(self, key: Key) -> list[Stroke]:
        """What has arrived of one key."""
        return [stroke for stroke in self.strokes() if stroke.key == key]

    def wait_for(self, stroke: Stroke) -> None:
        """Waits until a key event has arrived."""
        wait_until(lambda: stroke in self.strokes(), f"{stroke} at the witness")

    def forget(self) -> None:
        """Forgets what has arrived so far."""
        self.strokes()
        self._strokes.clear()
