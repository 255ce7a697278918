# SPDX-License-Identifier: MIT
"""A foreign program that owns a selection, run as a process of its own.

Its input is one JSON object: the selection, the offers, the targets it stays silent about, and
how many entries more its list of targets has. It prints a line when it owns the selection, and ends when another program takes it.
"""

import json
import os
import sys

from .offer import Offer
from .selection_owner import SelectionOwner


def main() -> None:
    """Owns until the selection is lost."""
    order = json.load(sys.stdin)
    owner = SelectionOwner(os.environ["DISPLAY"])
    owner.silent = frozenset(order["silent"])
    owner.padding = order["padding"]
    owner.own(order["selection"], [Offer.from_json(record) for record in order["offers"]])
    print("owned", flush=True)
    while owner.handle(owner.display.next_event()):
        pass


if __name__ == "__main__":
    main()
