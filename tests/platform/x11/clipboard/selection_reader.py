# SPDX-License-Identifier: MIT
"""A foreign program that asks for a selection, in one of several ways, and reports what it gets.

"contents": everything, each target on its own (ICCCM 2.4, 2.7.2).
"names": the targets alone.
"multiple": the targets that the test names, in one request (ICCCM 2.6.2).
"obsolete": one target, without naming a property (ICCCM 2.2).
"outdated": one target, as of the given number of milliseconds before the owner took the selection.
"parallel": one target, to two windows at once, their increments taken in turn.
"vanishing": one target in increments; the window is destroyed after the first.
"outlasting": one target in increments, the second of them on the test's go-ahead; reports "begun"
once it has the first.
"both": one target in increments of CLIPBOARD and of PRIMARY, through one window; the first is read
to its end before the other is read on.
"crowd": one target so many times in one request; how many of them are served.
"owned": whether anybody owns the selection.
"""

import struct

from selection_client import (
    SelectionClient,
    decoded,
    encoded,
    order,
    report,
    wait_for_go_ahead,
)
from Xlib import X, Xatom

QUESTIONS_AND_ORDERS = (
    ("TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS", "DELETE")
    + ("INSERT_SELECTION", "INSERT_PROPERTY")
)


class Refused(Exception):
    """The owner does not give this target."""


class Reader(SelectionClient):
    """Asks the owner of one selection."""

    def __init__(self, selection: str) -> None:
        super().__init__()
        self.selection = self.atom(selection)
        self.store = self.atom("QUORVANE_TEST_DATA")

    def ask(self, target: str, store: int, time: int, window=None) -> None:
        """Sends a request."""
        (window or self.window).convert_selection(self.selection, self.atom(target), store, time)
        self.display.sync()

    def answer(self):
        """The owner's answer to the last request."""
        while event := self.next_event():
            if event.type == X.SelectionNotify:
                if event.property == X.NONE:
                    raise Refused
                return event
        raise TimeoutError("the owner does not answer")

    def take(self, window, store: int):
        """Reads a property and deletes it: its type, the bits of a unit, its bytes."""
        value = window.get_full_property(store, X.AnyPropertyType, sizehint=1 << 20)
        if value is None:
            return None  # and nothing to delete: it may be there by now, unread
        window.delete_property(store)
        data = value.value
        raw = data if isinstance(data, bytes) else data.tobytes()
        return value.property_type, value.format, raw

    def increment(self, window, store: int):
        """The next increment."""
        while event := self.next_event():
            if (
                event.type == X.PropertyNotify
                and (event.window, event.atom) == (window, store)
                and event.state == X.PropertyNewValue
            ):
                taken = self.take(window, store)
                if taken is not None:
                    return taken
        raise TimeoutError("the increments end early")

    def received(self, window, store: int):
        """The value of an answered request, put together from increments if need be."""
        kind, units, data = self.take(window, store)
        if kind != self.atom("INCR"):
            return kind, units, data, 1
        return self.increments(window, store, [])

    def increments(self, window, store: int, parts: list[bytes]):
        """The value of which these parts have been taken."""
        count = len(parts)
        while True:
            kind, units, part = self.increment(window, store)
            if not part:
                return kind, units, b"".join(parts), count
            parts.append(part)
            count += 1

    def described(self, target: str, value):
        """For the report."""
        kind, units, data, pieces = value
        return {
            "target": target,
            "type": self.display.get_atom_name(kind),
            "units": units,
            "data": encoded(data),
            "pieces": pieces,
        }

    def read(self, target: str, time: int | None = None):
        """One target on its own; none if it is refused."""
        self.ask(target, self.store, self.server_time() if time is None else time)
        try:
            self.answer()
        except Refused:
            return None
        return self.described(target, self.received(self.window, self.store))

    def names(self) -> list[str]:
        """All targets."""
        self.ask("TARGETS", self.store, self.server_time())
        try:
            self.answer()
        except Refused:
            return []
        kind, units, data, _ = self.received(self.window, self.store)
        assert (kind, units) == (Xatom.ATOM, 32), (kind, units)
        return [self.display.get_atom_name(atom) for (atom,) in struct.iter_unpack("I", data)]

    def contents(self):
        """All that the targets give."""
        names = [name for name in self.names() if name not in QUESTIONS_AND_ORDERS]
        values = [self.read(name) for name in names]
        return [value for value in values if value is not None]

    def multiple(self, *targets: str):
        """All in one request; those that the owner cannot give are none."""
        stores = [self.atom(f"QUORVANE_TEST_DATA_{number}") for number in range(len(targets))]
        pairs = [atom for pair in zip(map(self.atom, targets), stores) for atom in pair]
        data = struct.pack(f"{len(pairs)}I", *pairs)
        self.put(self.window, self.store, "ATOM_PAIR", 32, data)
        self.ask("MULTIPLE", self.store, self.server_time())
        self.answer()
        _, _, left = self.take(self.window, self.store)
        result = []
        for index, (target, store) in enumerate(zip(targets, stores)):
            (kept,) = struct.unpack_from("I", left, index * 8)
            served = kept != X.NONE
            result.append(
                self.described(target, self.received(self.window, store)) if served else None
            )
        return result

    def obsolete(self, target: str):
        """The owner chooses the property: the one that is called like the target."""
        self.ask(target, X.NONE, self.server_time())
        answer = self.answer()
        assert answer.property == self.atom(target)
        return self.described(target, self.received(self.window, answer.property))

    def outdated(self, target: str, milliseconds: int):
        """As somebody asks who has not yet heard of a new owner."""
        stamp = self.read("TIMESTAMP")
        (since,) = struct.unpack("I", decoded(stamp["data"]))
        return self.read(target, since - milliseconds)

    def parallel(self, target: str):
        """Two receivers, one owner."""
        other = self.make_window()
        time = self.server_time()
        for window in (self.window, other):
            self.ask(target, self.store, time, window)
        for _ in range(2):
            self.answer()
        parts = {window: b"" for window in (self.window, other)}
        for window in parts:
            assert self.take(window, self.store)[0] == self.atom("INCR")
        unfinished = list(parts)
        while unfinished:
            for window in list(unfinished):
                _, _, part = self.increment_anywhere(window, self.store)
                parts[window] += part
                if not part:
                    unfinished.remove(window)
        return [encoded(data) for data in parts.values()]

    def increment_anywhere(self, window, store: int):
        """The next increment, whose announcement may have been read already."""
        while True:
            taken = self.take(window, store)
            self.display.sync()
            if taken is not None:
                return taken
            if self.next_event() is None:
                raise TimeoutError("the increments end early")

    def vanishing(self, target: str):
        """A receiver that is closed while it receives."""
        other = self.make_window()
        self.ask(target, self.store, self.server_time(), other)
        self.answer()
        assert self.take(other, self.store)[0] == self.atom("INCR")
        self.increment(other, self.store)
        other.destroy()
        self.display.sync()
        return "vanished"

    def outlasting(self, target: str):
        """A receiver that takes its time over the first increment."""
        self.ask(target, self.store, self.server_time())
        self.answer()
        assert self.take(self.window, self.store)[0] == self.atom("INCR")
        _, _, first = self.increment(self.window, self.store)
        report("begun")
        wait_for_go_ahead()
        return self.described(target, self.increments(self.window, self.store, [first]))

    def both(self, target: str):
        """Two selections into two properties of one window."""
        stores = {}
        for selection in ("CLIPBOARD", "PRIMARY"):
            stores[selection] = self.atom(f"QUORVANE_TEST_{selection}")
            self.selection = self.atom(selection)
            self.ask(target, stores[selection], self.server_time())
            self.answer()
            assert self.take(self.window, stores[selection])[0] == self.atom("INCR")
        first = {}
        for selection, store in stores.items():
            _, _, first[selection] = self.increment_anywhere(self.window, store)
        return [
            self.described(target, self.rest(store, [first[selection]]))
            for selection, store in stores.items()
        ]

    def rest(self, store: int, parts: list[bytes]):
        """What follows the parts, whose announcements may have been read already."""
        while True:
            kind, units, part = self.increment_anywhere(self.window, store)
            if not part:
                return kind, units, b"".join(parts), len(parts)
            parts.append(part)

    def crowd(self, target: str, count: int) -> int:
        """As many properties as pairs, all for one target."""
        stores = [self.atom(f"QUORVANE_TEST_CROWD_{i}") for i in range(min(count, 256))]
        pairs = [self.atom(target), stores[0]] * count
        pairs[1::2] = [stores[i % len(stores)] for i in range(count)]
        data = struct.pack(f"{len(pairs)}I", *pairs)
        self.put(self.window, self.store, "ATOM_PAIR", 32, data)
        self.ask("MULTIPLE", self.store, self.server_time())
        try:
            self.answer()
        except Refused:
            return 0
        _, _, left = self.take(self.window, self.store)
        return sum(target != X.NONE for target, _ in struct.iter_unpack("2I", left))

    def owned(self) -> bool:
        """Whether there is an owner."""
        return self.display.get_selection_owner(self.selection) != X.NONE


def main() -> None:
    """Asks once, as ordered."""
    wanted = order()
    report(getattr(Reader(wanted["selection"]), wanted["way"])(*wanted["arguments"]))


if __name__ == "__main__":
    main()
