# SPDX-License-Identifier: MIT
"""Another program from which the user drags something, by version 5 of the XDND protocol."""

from Xlib import X
from Xlib.protocol.event import ClientMessage
from Xlib.protocol.rq import Event

from .offer import Offer
from .selection_owner import SelectionOwner
from .waiting import Deadline

_VERSION = 5
_ACCEPTED = 1


class Dragging(SelectionOwner):
    """A drag that is under way, over one window."""

    def __init__(self, display: str, target: int, offers: list[Offer]) -> None:
        super().__init__(display)
        self._target = self.display.create_resource_object("window", target)
        self.own("XdndSelection", offers)
        types = [self.atom(offer.target) for offer in offers[:3]]
        self._send("XdndEnter", _VERSION << 24, *types)

    def move(self, x: int, y: int) -> bool:
        """Moves to a place on the screen; whether it may be dropped there."""
        copy = self.atom("XdndActionCopy")
        self._send("XdndPosition", 0, x << 16 | y, self._since, copy)
        status = self._answer_to("XdndStatus")
        return bool(status[1] & _ACCEPTED)

    def drop(self) -> None:
        """Drops where it was moved to, and serves it until the target has finished."""
        self._send("XdndDrop", 0, self._since)
        self._answer_to("XdndFinished")

    def _send(self, message: str, *values: int) -> None:
        data = [self.window.id, *values]
        event = ClientMessage(
            window=self._target,
            client_type=self.atom(message),
            data=(32, data + [0] * (5 - len(data))),
        )
        self._target.send_event(event, event_mask=X.NoEventMask)
        self.display.sync()

    def _answer_to(self, message: str) -> list[int]:
        awaited = self.atom(message)
        deadline = Deadline(message)
        while True:
            event: Event = self.next_event(deadline)
            if event.type == X.ClientMessage and event.client_type == awaited:
                return list(event.data[1])
            self.handle(event)
