# SPDX-License-Identifier: MIT
"""A connection to a message bus on which questions wait for their answers."""

from typing import Any

from gi.repository import Gio, GLib

from .waiting import PATIENCE

BusError = GLib.Error
"""What a failed call raises."""

_ANSWER_WITHIN = int(PATIENCE * 300)  # milliseconds

_DAEMON = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")


class MessageBus:
    """One connection of its own to the bus at an address."""

    def __init__(self, address: str) -> None:
        flags = (
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        )
        self.connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def close(self) -> None:
        """Ends the connection; harmless where the bus has ended."""
        if not self.connection.is_closed():
            self.connection.close_sync(None)

    def call(
        self,
        owner: str,
        path: str,
        interface: str,
        method: str,
        signature: str = "()",
        *values: Any,
    ) -> tuple[Any, ...]:
        """Calls a method with arguments of a D-Bus signature and returns what it answers."""
        return self.connection.call_sync(
            owner,
            path,
            interface,
            method,
            GLib.Variant(signature, values),
            None,
            Gio.DBusCallFlags.NONE,
            _ANSWER_WITHIN,
            None,
        ).unpack()

    def has_owner(self, name: str) -> bool:
        """Whether a program has a name on the bus."""
        return self.call(*_DAEMON, "NameHasOwner", "(s)", name)[0]

    def request_name(self, name: str) -> None:
        """Takes a name that nobody else has."""
        do_not_queue = 4
        self.call(*_DAEMON, "RequestName", "(su)", name, do_not_queue)

    def pid_of(self, owner: str) -> int:
        """The process behind a connection."""
        return self.call(*_DAEMON, "GetConnectionUnixProcessID", "(s)", owner)[0]
