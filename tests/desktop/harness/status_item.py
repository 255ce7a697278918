# SPDX-License-Identifier: MIT
"""A program's status item as the hosts of the desktop see it on the bus."""

from typing import Any

from gi.repository import GLib

from .message_bus import MessageBus
from .tray import WATCHER, WATCHER_PATH
from .waiting import wait_until

_ITEM = "org.kde.StatusNotifierItem"
_MENU = "com.canonical.dbusmenu"
_PROPERTIES = "org.freedesktop.DBus.Properties"

_WHOLE_MENU = (0, -1, [])  # from the root, all levels, all properties

_NO_DATA = GLib.Variant("s", "")

SEPARATOR = ""
"""The title of a separator."""


class StatusItem:
    """The only item that is registered with the watcher; waits until there is one."""

    def __init__(self, session_bus_address: str) -> None:
        self._bus = MessageBus(session_bus_address)
        self._owner, path = wait_until(self._registered, "a registered item").split("/", 1)
        self._path = f"/{path}"

    def close(self) -> None:
        """Ends the connection."""
        self._bus.close()

    def property(self, name: str) -> Any:
        """A property of the item, such as "ToolTip"."""
        return self._get(self._owner, self._path, _ITEM, name)

    def activate(self) -> None:
        """What a host calls for a left click."""
        self._bus.call(self._owner, self._path, _ITEM, "Activate", "(ii)", 0, 0)

    def menu(self) -> list[str]:
        """The titles of the menu that a host draws, separators among them."""
        return [entry.get("label", SEPARATOR) for _, entry in self._entries()]

    def choose(self, title: str) -> None:
        """What a host sends when the user chooses an entry of the menu."""
        number = next(n for n, entry in self._entries() if entry.get("label") == title)
        path = self.property("Menu")
        arguments = (number, "clicked", _NO_DATA, 0)
        self._bus.call(self._owner, path, _MENU, "Event", "(isvu)", *arguments)

    def _entries(self) -> list[tuple[int, dict[str, Any]]]:
        path = self.property("Menu")
        _, root = self._bus.call(self._owner, path, _MENU, "GetLayout", "(iias)", *_WHOLE_MENU)
        return [(number, properties) for number, properties, _ in root[2]]

    def _registered(self) -> str | None:
        items = self._get(WATCHER, WATCHER_PATH, WATCHER, "RegisteredStatusNotifierItems")
        return items[0] if items else None

    def _get(self, owner: str, path: str, interface: str, name: str) -> Any:
        return self._bus.call(owner, path, _PROPERTIES, "Get", "(ss)", interface, name)[0]
