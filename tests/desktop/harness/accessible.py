# SPDX-License-Identifier: MIT
"""What a screen reader would see: AT-SPI, asked afresh at each question."""

from collections.abc import Callable, Iterator
from enum import IntEnum
from typing import Any

from gi.repository import Gio, GLib

from .message_bus import BusError, MessageBus
from .text_events import TextEvents
from .waiting import PATIENCE, wait_until

_ACCESSIBLE = "org.a11y.atspi.Accessible"
_TEXT = "org.a11y.atspi.Text"
_COMPONENT = "org.a11y.atspi.Component"
_SCREEN = 0  # ATSPI_COORD_TYPE_SCREEN
_ACTION = "org.a11y.atspi.Action"
_PROPERTIES = "org.freedesktop.DBus.Properties"
_REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")


class State(IntEnum):
    """The states that the tests ask for, by AT-SPI's numbers."""

    CHECKED = 4
    EDITABLE = 7
    ENABLED = 8
    FOCUSABLE = 11
    FOCUSED = 12
    SHOWING = 25


class Accessible:
    """One object of an application's accessible tree."""

    def __init__(self, bus: MessageBus, owner: str, path: str) -> None:
        self._bus = bus
        self._owner = owner
        self._path = path

    @property
    def pid(self) -> int:
        """The process that the object lives in."""
        return self._bus.pid_of(self._owner)

    @property
    def name(self) -> str:
        """The accessible name: what a screen reader says."""
        return self._call(_PROPERTIES, "Get", "(ss)", _ACCESSIBLE, "Name")

    @property
    def role(self) -> str:
        """The role by its AT-SPI name, such as "push button"."""
        return self._call(_ACCESSIBLE, "GetRoleName")

    @property
    def text(self) -> str:
        """The whole text of an object that holds one."""
        return self._call(_TEXT, "GetText", "(ii)", 0, -1)

    def has_selection(self) -> bool:
        """Whether a part of the text is selected."""
        return self._call(_TEXT, "GetNSelections") > 0

    def has(self, state: State) -> bool:
        """Whether a state is set."""
        words = self._call(_ACCESSIBLE, "GetState")
        return bool(words[state // 32] >> (state % 32) & 1)

    @property
    def description(self) -> str:
        """What a screen reader says after name and role."""
        return self._call(_PROPERTIES, "Get", "(ss)", _ACCESSIBLE, "Description")

    @property
    def extents(self) -> tuple[int, int, int, int]:
        """Left, top, width and height on the screen."""
        return self._call(_COMPONENT, "GetExtents", "(u)", _SCREEN)

    def press(self) -> None:
        """Performs the object's first action: a click, for a button."""
        self._call(_ACTION, "DoAction", "(i)", 0)

    def focus(self) -> None:
        """Moves the focus there without a key, as a screen reader's own commands do."""
        self._call(_COMPONENT, "GrabFocus")

    def children(self) -> list["Accessible"]:
        """The objects directly below."""
        pairs = self._call(_ACCESSIBLE, "GetChildren")
        return [Accessible(self._bus, owner, path) for owner, path in pairs]

    def find(self, name: str) -> "Accessible":
        """The showing object of a name; waits until there is one."""
        return self._await(lambda found: found.name == name, f'something named "{name}"')

    def find_role(self, role: str, name: str) -> "Accessible":
        """The showing object of a role and a name; waits until there is one."""
        return self._await(
            lambda found: found.name == name and found.role == role, f'a {role} named "{name}"'
        )

    def find_described(self, role: str, description: str) -> "Accessible":
        """The showing object of a role whose description ends so; waits until there is one."""
        return self._await(
            lambda found: found.role == role and found.description.endswith(description),
            f'a {role} described as "{description}"',
        )

    def shows(self, role: str, name: str) -> bool:
        """Whether something of a role and a name shows now."""
        return self._first(lambda found: found.name == name and found.role == role) is not None

    def shows_named(self, name: str) -> bool:
        """Whether something of a name shows now."""
        return self._first(lambda found: found.name == name) is not None

    def find_editor(self) -> "Accessible":
        """The first editable text that shows; waits until there is one."""
        return self._await(
            lambda found: found.has(State.EDITABLE) and found.role == "text", "an editable text"
        )

    def showing(self) -> Iterator["Accessible"]:
        """Everything below that shows."""
        return (found for found in self._descendants() if found.is_showing())

    def all(self) -> Iterator["Accessible"]:
        """Everything below, whether it shows or not."""
        return self._descendants()

    def is_showing(self) -> bool:
        """Whether it shows; what is gone does not."""
        try:
            return self.has(State.SHOWING)
        except BusError:
            return False

    def _await(self, is_wanted: Callable[["Accessible"], bool], what: str) -> "Accessible":
        return wait_until(lambda: self._first(is_wanted), what)

    def _first(self, is_wanted: Callable[["Accessible"], bool]) -> "Accessible | None":
        for found in self._descendants():
            try:
                if is_wanted(found) and found.has(State.SHOWING):
                    return found
            except BusError:
                continue  # it went while it was looked at
        return None

    def _descendants(self) -> Iterator["Accessible"]:
        try:
            children = self.children()
        except BusError:
            return
        for child in children:
            yield child
            yield from child._descendants()

    def _call(self, interface: str, method: str, signature: str = "()", *values: Any) -> Any:
        return self._bus.call(self._owner, self._path, interface, method, signature, *values)[0]


class Accessibility:
    """The bus on which the applications of a session publish their trees."""

    def __init__(self, session_bus_address: str) -> None:
        session_bus = MessageBus(session_bus_address)
        address = session_bus.call(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"
        )[0]
        session_bus.close()
        self._bus = MessageBus(address)

    def close(self) -> None:
        """Ends the connection."""
        self._bus.close()

    def listen_for_names(self) -> "NameChanges":
        """Hears from now on what changes its name, as a screen reader does."""
        return NameChanges(self._bus)

    def listen_for_texts(self) -> TextEvents:
        """Hears what changes in the texts of programs that start from now on."""
        return TextEvents(self._bus)

    def application(self, pid: int, seconds: float = PATIENCE) -> Accessible:
        """The tree of a process; waits until it is published."""
        return wait_until(lambda: self._find(pid), f"the tree of process {pid}", seconds)

    def _find(self, pid: int) -> Accessible | None:
        for root in Accessible(self._bus, *_REGISTRY).children():
            try:
                if root.pid == pid:
                    return root
            except BusError:
                continue  # an application that has just ended
        return None


class NameChanges:
    """The names that objects took, in the order of their announcement."""

    def __init__(self, bus: MessageBus) -> None:
        self._bus = bus
        self._names: list[str] = []
        self._context = GLib.MainContext.default()
        bus.call(
            "org.a11y.atspi.Registry",
            "/org/a11y/atspi/registry",
            "org.a11y.atspi.Registry",
            "RegisterEvent",
            "(sas)",
            "Object:PropertyChange:AccessibleName",
            [],
        )
        bus.connection.signal_subscribe(
            None,
            "org.a11y.atspi.Event.Object",
            "PropertyChange",
            None,
            "accessible-name",
            Gio.DBusSignalFlags.NONE,
            self._hear,
        )

    def wait_for(self, name: str) -> None:
        """Waits until something has taken the name."""

        def is_heard() -> bool:
            while self._context.iteration(False):
                pass
            return name in self._names

        wait_until(is_heard, f'the announcement of "{name}"')

    def _hear(self, _connection: Any, sender: str, path: str, *_signal: Any) -> None:
        # The signal says which object it is; its name is then asked for.
        self._names.append(Accessible(self._bus, sender, path).name)
