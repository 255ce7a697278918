# SPDX-License-Identifier: MIT
"""What the foreign programs of these tests have in common."""

import base64
import json
import select
import sys
import time
from typing import Any

from Xlib import X, Xatom
from Xlib.display import Display
from Xlib.error import CatchError
from Xlib.protocol.rq import Event
from Xlib.xobject.drawable import Window

TYPECODES = {8: "B", 16: "H", 32: "I"}

REQUEST = 200_000  # bytes in one request; Xlib for Python knows no larger ones


def order() -> dict[str, Any]:
    """What the test wants of the program: one line of its input."""
    return json.loads(sys.stdin.readline())


def report(answer: Any) -> None:
    """Tells the test, in one line."""
    print(json.dumps({"report": answer}), flush=True)


def wait_for_go_ahead() -> None:
    """Until the test has seen the last report and says so, with an empty line."""
    sys.stdin.readline()


def encoded(data: bytes) -> str:
    """Bytes for a line of JSON."""
    return base64.b64encode(data).decode()


def decoded(text: str) -> bytes:
    """The inverse of `encoded`."""
    return base64.b64decode(text)


class SelectionClient:
    """A connection with a window that is never mapped."""

    def __init__(self) -> None:
        self.display = Display()
        self.window = self.make_window()

    def make_window(self) -> Window:
        """Another window that takes part in conversations."""
        return self.display.screen().root.create_window(
            0, 0, 1, 1, 0, X.CopyFromParent, event_mask=X.PropertyChangeMask
        )

    def atom(self, name: str) -> int:
        """The atom of a name."""
        return self.display.get_atom(name)

    def put(self, window: Window, store: int, kind: str, units: int, data: bytes) -> None:
        """Sets a property, bit for bit and of any length; nothing if there is no such window."""
        mode = X.PropModeReplace
        for start in range(0, max(len(data), 1), REQUEST):
            part = data[start : start + REQUEST]
            values = part if units == 8 else memoryview(part).cast(TYPECODES[units]).tolist()
            window.change_property(
                store, self.atom(kind), units, values, mode=mode, onerror=CatchError()
            )
            mode = X.PropModeAppend
        # A flush leaves what the socket does not take to the next request, which may never come.
        self.display.sync()

    def next_event(self, within: float = 10) -> Event | None:
        """The next event; none if there is none in so many seconds."""
        end = time.monotonic() + within
        while not self.display.pending_events():
            remaining = end - time.monotonic()
            if remaining <= 0:
                return None
            select.select([self.display], [], [], remaining)
        return self.display.next_event()

    def server_time(self) -> int:
        """The recipe of ICCCM 2.1: a property that changes by nothing tells the time."""
        clock = self.atom("QUORVANE_TEST_CLOCK")
        self.window.change_property(clock, Xatom.INTEGER, 32, [], X.PropModeAppend)
        while event := self.next_event():
            if event.type == X.PropertyNotify and event.atom == clock:
                return event.time
        raise TimeoutError("the server does not tell the time")
