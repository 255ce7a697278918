# SPDX-License-Identifier: MIT
"""What readers and owners of selections have in common: a window and the server's time."""

import select

from Xlib import X
from Xlib.display import Display
from Xlib.protocol.rq import Event

from .waiting import Deadline


class SelectionClient:
    """A connection with one unmapped window for ICCCM conversations."""

    def __init__(self, display: str) -> None:
        self.display = Display(display)
        self.window = self.display.screen().root.create_window(
            0, 0, 1, 1, 0, X.CopyFromParent, event_mask=X.PropertyChangeMask
        )

    def close(self) -> None:
        """Ends the connection, and with it any ownership."""
        self.display.close()

    def atom(self, name: str) -> int:
        """The atom of a name."""
        return self.display.get_atom(name)

    def name(self, atom: int) -> str:
        """The name of an atom."""
        return self.display.get_atom_name(atom)

    def next_event(self, deadline: Deadline) -> Event:
        """The next event, which has to come before the deadline."""
        while not self.display.pending_events():
            select.select([self.display], [], [], deadline.remaining())
        return self.display.next_event()

    def server_time(self) -> int:
        """A time that the server gave: ICCCM 2.1 forbids CurrentTime."""
        clock = self.atom("QUORVANE_TEST_CLOCK")
        self.window.change_property(clock, self.atom("INTEGER"), 32, [], X.PropModeAppend)
        deadline = Deadline("the server's time")
        while True:
            event = self.next_event(deadline)
            if event.type == X.PropertyNotify and event.atom == clock:
                return event.time
