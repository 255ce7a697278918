# SPDX-License-Identifier: MIT
"""Owns a selection and serves whatever data it was given."""

from dataclasses import dataclass

from Xlib import X
from Xlib.error import CatchError
from Xlib.protocol.event import SelectionNotify
from Xlib.protocol.rq import Event
from Xlib.xobject.drawable import Window

from .offer import Offer
from .selection_client import SelectionClient

# The X library used here has no BIG-REQUESTS: a property is set in one request of 256 KiB at most.
_CHUNK = 128 * 1024


@dataclass
class _Transfer:
    """Data on their way out in increments."""

    offer: Offer
    sent: int = 0


class SelectionOwner(SelectionClient):
    """Serves TARGETS, TIMESTAMP and the offers, the long ones by INCR."""

    def __init__(self, display: str) -> None:
        super().__init__(display)
        self._offers: dict[str, Offer] = {}
        self._since = X.CurrentTime
        self._transfers: dict[tuple[int, int], _Transfer] = {}
        self.silent: frozenset[str] = frozenset()
        """The targets that are never answered, as by a program that hangs."""
        self.padding = 0
        """How many more entries the list of targets has, which serve no one."""

    def own(self, selection: str, offers: list[Offer]) -> None:
        """Takes the selection."""
        self.claim(selection, offers, self.server_time())
        owner = self.display.get_selection_owner(self.atom(selection))
        if owner == X.NONE or owner.id != self.window.id:
            raise RuntimeError(f"{selection} is not ours")

    def claim(self, selection: str, offers: list[Offer], since: int) -> None:
        """Asks for the selection as of a time of the server, and does not look who got it."""
        self._offers = {offer.target: offer for offer in offers}
        self._since = since
        self.window.set_selection_owner(self.atom(selection), since)
        self.display.flush()

    def disown(self, selection: str) -> None:
        """Gives the selection up, unless somebody else has taken it since."""
        nobody = self.display.create_resource_object("window", X.NONE)
        nobody.set_selection_owner(self.atom(selection), self._since)
        self.display.flush()

    def handle(self, event: Event) -> bool:
        """Does what an event asks for; false once the selection is lost."""
        if event.type == X.SelectionClear:
            return False
        if event.type == X.SelectionRequest:
            self._answer(event)
        elif event.type == X.PropertyNotify and event.state == X.PropertyDelete:
            self._continue(event.window, event.atom)
        return True

    def _answer(self, request: Event) -> None:
        target = self.name(request.target)
        if target in self.silent:
            return
        # ICCCM 2.2: a client of old leaves the property to us, by the target's name.
        store = request.property or request.target
        served = self._serve(request.requestor, store, target)
        self.confirm(request, store if served else X.NONE)

    def confirm(self, request: Event, store: int) -> None:
        """Tells a requestor that its property is filled; `X.NONE` refuses."""
        notice = SelectionNotify(
            time=request.time,
            requestor=request.requestor,
            selection=request.selection,
            target=request.target,
            property=store,
        )
        request.requestor.send_event(notice, onerror=CatchError())
        self.display.sync()

    def _serve(self, requestor: Window, store: int, target: str) -> bool:
        if target == "TARGETS":
            names = ["TARGETS", "TIMESTAMP", *self._offers]
            self._put(requestor, store, "ATOM", 32, [self.atom(name) for name in names])
            self._pad(requestor, store)
        elif target == "TIMESTAMP":
            self._put(requestor, store, "INTEGER", 32, [self._since])
        elif target not in self._offers:
            return False
        elif len(self._offers[target].data) > _CHUNK:
            self._begin(requestor, store, self._offers[target])
        else:
            self._put_offer(requestor, store, self._offers[target])
        return True

    def _pad(self, requestor: Window, store: int) -> None:
        atom = self.atom("ATOM")
        for begin in range(0, self.padding, _CHUNK // 4):
            part = [self.atom("x-test/padding")] * min(_CHUNK // 4, self.padding - begin)
            requestor.change_property(
                store, atom, 32, part, mode=X.PropModeAppend, onerror=CatchError()
            )

    def _begin(self, requestor: Window, store: int, offer: Offer) -> None:
        requestor.change_attributes(event_mask=X.PropertyChangeMask, onerror=CatchError())
        self._transfers[requestor.id, store] = _Transfer(offer)
        self._put(requestor, store, "INCR", 32, [len(offer.data)])

    def _continue(self, requestor: Window, store: int) -> None:
        transfer = self._transfers.get((requestor.id, store))
        if transfer is None:
            return
        offer = transfer.offer
        part = offer.data[transfer.sent : transfer.sent + _CHUNK]
        transfer.sent += len(part)
        self._put_offer(requestor, store, Offer(offer.target, part, offer.type, offer.units))
        if not part:
            del self._transfers[requestor.id, store]

    def _put_offer(self, requestor: Window, store: int, offer: Offer) -> None:
        view = memoryview(offer.data).cast({8: "B", 16: "H", 32: "I"}[offer.units])
        values = offer.data if offer.units == 8 else view.tolist()
        self._put(requestor, store, offer.type, offer.units, values)

    def _put(
        self, requestor: Window, store: int, kind: str, units: int, values: bytes | list[int]
    ) -> None:
        requestor.change_property(store, self.atom(kind), units, values, onerror=CatchError())
        self.display.sync()
