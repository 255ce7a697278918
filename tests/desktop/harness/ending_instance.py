# SPDX-License-Identifier: MIT
"""A first Quorvane that is about to end: its name is still on the bus, its answers are not."""

from gi.repository import Gio, GLib

from .message_bus import MessageBus
from .waiting import wait_until

NAME = "org.quorvane.Quorvane"
PATH = "/org/quorvane/Quorvane"
INTERFACE = "org.freedesktop.Application"

_INTROSPECTION = f"""
<node>
  <interface name="{INTERFACE}">
    <method name="Activate"><arg type="a{{sv}}" direction="in"/></method>
  </interface>
</node>
"""


class EndingInstance:
    """Owns the name until somebody calls, and leaves the bus instead of answering."""

    def __init__(self, session_bus_address: str) -> None:
        self._bus = MessageBus(session_bus_address)
        self._called = False
        interface = Gio.DBusNodeInfo.new_for_xml(_INTROSPECTION).interfaces[0]
        self._bus.connection.register_object(PATH, interface, self._note_call, None, None)
        self._bus.request_name(NAME)

    def end_when_called(self) -> None:
        """Waits for the call, and leaves."""
        wait_until(self._take_call, "a call of the first process")
        self._bus.close()

    def _take_call(self) -> bool:
        GLib.MainContext.default().iteration(False)
        return self._called

    def _note_call(self, *_call: object) -> None:
        self._called = True
