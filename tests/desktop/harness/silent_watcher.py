# SPDX-License-Identifier: MIT
"""A watcher of StatusNotifierItems that has stopped to answer."""

from gi.repository import Gio, GLib

from .message_bus import MessageBus
from .tray import WATCHER, WATCHER_PATH

_INTROSPECTION = f"""
<node>
  <interface name="{WATCHER}">
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  </interface>
</node>
"""


class SilentWatcher:
    """Takes questions and never answers, until it is closed."""

    def __init__(self, session_bus_address: str) -> None:
        self._bus = MessageBus(session_bus_address)
        # Questions go to the loop of this context, which nobody runs.
        context = GLib.MainContext()
        context.push_thread_default()
        interface = Gio.DBusNodeInfo.new_for_xml(_INTROSPECTION).interfaces[0]
        self._bus.connection.register_object(WATCHER_PATH, interface, None, None, None)
        context.pop_thread_default()
        self._bus.request_name(WATCHER)

    def close(self) -> None:
        """Ends the watcher as a crash would."""
        self._bus.close()
