# SPDX-License-Identifier: MIT
"""A program that owns a selection and is slow, refuses, or dies; run as a process of its own.

Its input is one JSON object. It prints a line when it owns the selection, and ends when another
program takes it, or when it is asked for what it dies of.
"""

import json
import os
import sys
import time
from contextlib import suppress

from harness.offer import Offer
from harness.selection_owner import SelectionOwner
from Xlib import X
from Xlib.protocol.rq import Event

_MORE_URGENT = -15


class TroubledOwner(SelectionOwner):
    """Serves as its order says."""

    def __init__(self, display: str, order: dict) -> None:
        super().__init__(display)
        self.silent = frozenset(order.get("silent", ()))
        self._refused = frozenset(order.get("refused", ()))
        self._deadly = frozenset(order.get("deadly", ()))
        self._pause = float(order.get("pause", 0))

    def handle(self, event: Event) -> bool:
        if event.type != X.SelectionRequest:
            return super().handle(event)
        target = self.name(event.target)
        if target in self._deadly:
            return False
        time.sleep(self._pause)  # being slow is what this owner is for
        if target not in self._refused:
            return super().handle(event)
        self.confirm(event, X.NONE)
        return True


def _offers(order: dict) -> list[Offer]:
    offers = [Offer.from_json(record) for record in order["offers"]]
    if large := order.get("large"):
        offers.append(Offer("image/tiff", pattern(large)))
    return offers


def pattern(size: int) -> bytes:
    """Bytes that are the same wherever they are made, and differ from one to the next."""
    block = bytes(range(251)) * 4096
    return (block * (size // len(block) + 1))[:size]


def main() -> None:
    """Owns until the selection is lost."""
    order = json.load(sys.stdin)
    # A program that is cut off for its silence must have meant to be silent.
    with suppress(PermissionError):
        os.nice(_MORE_URGENT)
    owner = TroubledOwner(os.environ["DISPLAY"], order)
    owner.own(order["selection"], _offers(order))
    print("owned", flush=True)
    while owner.handle(owner.display.next_event()):
        pass


if __name__ == "__main__":
    main()
