# SPDX-License-Identifier: MIT
"""What follows the starts of programs, as desktops do that let the pointer show them."""

import re

from Xlib import X
from Xlib.display import Display
from Xlib.protocol.event import ClientMessage

from .waiting import wait_until

_FIRST, _NEXT = "_NET_STARTUP_INFO_BEGIN", "_NET_STARTUP_INFO"

# A value ends with its quote, or with the first space; a backslash takes the meaning of what follows.
_MESSAGE = re.compile(
    r'(?P<kind>new|remove):.*? ID=("(?P<quoted>(\\.|[^"\\])*)"|(?P<bare>(\\.|[^\s"\\])+))'
)


class StartupMonitor:
    """Notes every start that a launcher of this display announces, until close()."""

    def __init__(self, display: str) -> None:
        self.begun: list[str] = []
        """The identifiers of the starts, in order."""
        self.ended: list[str] = []
        """Those whose end was announced."""
        self._display = Display(display)
        self._root = self._display.screen().root
        self._root.change_attributes(event_mask=X.PropertyChangeMask)
        self._display.sync()
        self._pieces: dict[int, bytes] = {}

    def close(self) -> None:
        """Ends the connection."""
        self._display.close()

    def announce(self, identifier: str) -> None:
        """What a launcher does that starts something."""
        sender = self._root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        text = f'new: ID="{identifier}" NAME=Launched SCREEN=0'.encode() + b"\0"
        for at in range(0, len(text), 20):
            kind = self._display.get_atom(_NEXT if at else _FIRST)
            piece = text[at : at + 20].ljust(20, b"\0")
            message = ClientMessage(window=sender, client_type=kind, data=(8, piece))
            self._root.send_event(message, event_mask=X.PropertyChangeMask)
        self._display.sync()

    def wait_ended(self, identifier: str) -> None:
        """Waits until the start is over."""
        wait_until(lambda: identifier in self._follow().ended, f"the end of {identifier}")

    def wait_begun(self) -> str:
        """Waits for the first start, and returns what it is called."""
        return wait_until(lambda: self._follow().begun, "a start")[0]

    def _follow(self) -> "StartupMonitor":
        while self._display.pending_events():
            event = self._display.next_event()
            if event.type == X.ClientMessage:
                self._take(event)
        return self

    def _take(self, event: ClientMessage) -> None:
        if self._display.get_atom_name(event.client_type) not in (_FIRST, _NEXT):
            return
        text = self._pieces.pop(event.window.id, b"") + bytes(event.data[1])
        if b"\0" not in text:
            self._pieces[event.window.id] = text
            return
        message = text.split(b"\0")[0].decode()
        if found := _MESSAGE.match(message):
            notes = self.begun if found["kind"] == "new" else self.ended
            notes.append(re.sub(r"\\(.)", r"\1", found["quoted"] or found["bare"]))
