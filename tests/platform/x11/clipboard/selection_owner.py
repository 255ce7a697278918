# SPDX-License-Identifier: MIT
"""A foreign program that owns a selection and treats each of its targets as the test orders.

An offer's manner is "plain" (one property), "incremental", "dripping" (increments of a few bytes,
each on the test's go-ahead), "refusing", "silent" (no answer), "late" (the first answer is put off
until the next request) or "dying" (gone after the first increment). With "targets" false the owner
cannot tell its targets; with "flood" it tells so many more that nobody has asked for.

It reports "owned", then each target that it is asked for, "taken" for each increment of a dripping
one that it may follow up, and ends when it loses the selection.
"""

import os
import struct

from selection_client import SelectionClient, decoded, order, report, wait_for_go_ahead
from Xlib import X
from Xlib.error import CatchError
from Xlib.protocol.event import SelectionNotify

PIECE = 100_000  # bytes; whole units of any size


class Owner(SelectionClient):
    """Owns until another program does."""

    def __init__(self, wanted) -> None:
        super().__init__()
        self.offers = {offer["target"]: offer for offer in wanted["offers"]}
        self.names = wanted.get("names", list(self.offers))
        self.tells_targets = wanted.get("targets", True)
        self.flood = wanted.get("flood", 0)
        self.selection = self.atom(wanted["selection"])
        self.since = self.server_time()
        self.transfers = {}
        self.put_off = {}
        self.window.set_selection_owner(self.selection, self.since)
        self.display.sync()
        report("owned")

    def run(self) -> None:
        """Serves until the selection is lost and all that has begun is done."""
        is_owner = True
        while is_owner or self.transfers:
            event = self.next_event(60)
            if event is None:
                return
            if event.type == X.SelectionClear:
                is_owner = False
                report("lost")
            elif event.type == X.SelectionRequest:
                self.answer(event)
            elif event.type == X.PropertyNotify and event.state == X.PropertyDelete:
                self.send_increment(event)

    def answer(self, request) -> None:
        """One request, and those that were put off until now."""
        target = self.display.get_atom_name(request.target)
        report(target)
        for late in [late for late in self.put_off.values() if late]:
            self.conclude(late)
        self.put_off = dict.fromkeys(self.put_off)
        manner = self.manner_of(target)
        if manner == "late" and target not in self.put_off:
            self.put_off[target] = request
        elif manner != "silent":
            self.conclude(request)

    def manner_of(self, target: str) -> str:
        """How a target is given."""
        return self.offers.get(target, {}).get("manner", "plain")

    def conclude(self, request) -> None:
        """The answer to a request."""
        target = self.display.get_atom_name(request.target)
        store = request.property or request.target
        manner = self.manner_of(target)
        served = manner != "refusing" and self.serve(request.requestor, store, target, manner)
        notice = SelectionNotify(
            time=request.time,
            requestor=request.requestor,
            selection=request.selection,
            target=request.target,
            property=store if served else X.NONE,
        )
        request.requestor.send_event(notice, onerror=CatchError())
        self.display.sync()

    def serve(self, requestor, store: int, target: str, manner: str) -> bool:
        """The property of one answer."""
        if target == "TARGETS" and self.tells_targets:
            atoms = [self.atom(name) for name in self.names]
            atoms += range(atoms[-1] + 1, atoms[-1] + 1 + self.flood)
            self.put(requestor, store, "ATOM", 32, struct.pack(f"{len(atoms)}I", *atoms))
        elif target == "TIMESTAMP":
            self.put(requestor, store, "INTEGER", 32, struct.pack("I", self.since))
        elif target not in self.offers:
            return False
        elif manner in ("plain", "late"):
            offer = self.offers[target]
            self.put(requestor, store, offer["type"], offer["units"], decoded(offer["data"]))
        else:
            self.begin(requestor, store, self.offers[target])
        return True

    def begin(self, requestor, store: int, offer) -> None:
        """The start of a transfer in increments."""
        data = decoded(offer["data"])
        requestor.change_attributes(event_mask=X.PropertyChangeMask, onerror=CatchError())
        self.transfers[requestor.id, store] = [offer, data]
        self.put(requestor, store, "INCR", 32, struct.pack("I", len(data)))

    def send_increment(self, event) -> None:
        """The next increment of a transfer, as its receiver has taken the one before."""
        key = event.window.id, event.atom
        if key not in self.transfers:
            return
        offer, rest = self.transfers[key]
        size = PIECE
        if offer["manner"] == "dripping":
            report("taken")
            wait_for_go_ahead()
            size = 8
        piece = rest[:size]
        self.put(event.window, event.atom, offer["type"], offer["units"], piece)
        self.transfers[key][1] = rest[size:]
        if offer["manner"] == "dying":
            self.display.sync()
            os._exit(0)
        if not piece:
            del self.transfers[key]


if __name__ == "__main__":
    Owner(order()).run()
