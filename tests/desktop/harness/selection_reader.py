# SPDX-License-Identifier: MIT
"""Reads a selection byte by byte, as ICCCM 2.4 and 2.7 (INCR) lay it down."""

from Xlib import X

from .offer import Offer
from .selection_client import SelectionClient
from .waiting import Deadline

# Not contents but requests: some of them have effects on the owner.
SIDE_EFFECTS = frozenset(
    ("TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS", "DELETE")
    + ("INSERT_SELECTION", "INSERT_PROPERTY")
)


class SelectionReader(SelectionClient):
    """Asks the owner of a selection for everything it has."""

    def is_owned(self, selection: str) -> bool:
        """Whether anybody owns the selection."""
        return self.display.get_selection_owner(self.atom(selection)) != X.NONE

    def offers(self, selection: str) -> list[Offer]:
        """All that the owner offers, in its order; nothing where there is no owner."""
        names = [name for name in self.targets(selection) if name not in SIDE_EFFECTS]
        read = (self.read(selection, name) for name in names)
        return [offer for offer in read if offer is not None]

    def targets(self, selection: str) -> list[str]:
        """The names of the owner's targets."""
        answer = self.read(selection, "TARGETS")
        if answer is None:
            return []
        atoms = memoryview(answer.data).cast("I")
        return [self.name(atom) for atom in atoms]

    def read(self, selection: str, target: str) -> Offer | None:
        """One target; nothing where the owner refuses."""
        store = self.atom("QUORVANE_TEST_DATA")
        self.window.convert_selection(
            self.atom(selection), self.atom(target), store, self.server_time()
        )
        deadline = Deadline(f"{target} of {selection}")
        while (event := self.next_event(deadline)).type != X.SelectionNotify:
            pass
        if event.property == X.NONE:
            return None
        kind, units, data = self._take(store)
        if kind == "INCR":
            kind, units, data = self._increments(store, deadline)
        return Offer(target, data, kind, units)

    def _take(self, store: int) -> tuple[str, int, bytes]:
        answer = self.window.get_full_property(store, X.AnyPropertyType)
        # The deletion is what tells the owner of an INCR transfer to go on.
        self.window.delete_property(store)
        if answer is None:
            return "", 8, b""
        value = answer.value
        data = value if isinstance(value, bytes) else value.tobytes()
        return self.name(answer.property_type), answer.format, data

    def _increments(self, store: int, deadline: Deadline) -> tuple[str, int, bytes]:
        parts = bytearray()
        while True:
            event = self.next_event(deadline)
            if event.type != X.PropertyNotify or event.atom != store:
                continue
            if event.state != X.PropertyNewValue:
                continue
            kind, units, data = self._take(store)
            if not kind:
                continue  # the value whose announcement was read late: taken already
            if not data:
                return kind, units, bytes(parts)
            parts += data
