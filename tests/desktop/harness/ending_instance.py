# SPDX-License-Identifier: MIT
"""A first Quorvane that is about to end: its name is still on the bus, its answers are not."""

from gi.repository import Gio, GLib

from .message_bus import MessageBus
from .quorvane import BUS_INTERFACE, BUS_NAME, BUS_PATH
from .waiting import wait_until

_INTROSPECTION = f"""
<node>
  <interface name="{BUS_INTERFACE}">
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
        self._bus.connection.register_object(BUS_PATH, interface, self._note_call, None, None)
        self._bus.request_name(BUS_NAME)

    def end_when_called(self) -> None:
        """Waits for the call, and leaves."""
        wait_until(self._take_call, "a call of the first process")
        self._bus.close()

    def _take_call(self) -> bool:
        GLib.MainContext.default().iteration(False)
        return self._called

    def _note_call(self, *_call: object) -> None:
        self._called = True
