# SPDX-License-Identifier: MIT
"""The desktop's server for notifications, with what it was asked to show."""

from dataclasses import dataclass
from typing import Any

from gi.repository import GLib

from .bus_service import BusService
from .waiting import wait_until

_NAME = "org.freedesktop.Notifications"
_PATH = "/org/freedesktop/Notifications"

_INTROSPECTION = f"""
<node>
  <interface name="{_NAME}">
    <method name="GetCapabilities">
      <arg type="as" direction="out"/>
    </method>
    <method name="Notify">
      <arg type="s" direction="in"/>
      <arg type="u" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="as" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="i" direction="in"/>
      <arg type="u" direction="out"/>
    </method>
  </interface>
</node>
"""


@dataclass(frozen=True)
class Notification:
    """One that a program has shown; those it replaced are gone."""

    program: str
    title: str
    body: str
    actions: tuple[str, ...]
    desktop_entry: str


class NotificationServer(BusService):
    """Shows what it is asked to; a silent one takes calls and never answers."""

    def __init__(self, session_bus_address: str, silent: bool = False) -> None:
        self._silent = silent
        self._shown: dict[int, Notification] = {}
        self._last_id = 0
        super().__init__(session_bus_address, _NAME, _PATH, _INTROSPECTION)

    def wait_shown(self) -> Notification:
        """Waits until there is a notification on the screen, and returns it; never two."""
        wait_until(lambda: self._shown, "a notification")
        (notification,) = self._shown.values()
        return notification

    def clear(self) -> None:
        """Waits for the next one from now on, which may still replace the last."""
        self._shown = {}

    def invoke(self, action: str) -> None:
        """The user presses a button of the one on the screen."""
        (number,) = self._shown
        arguments = GLib.Variant("(us)", (number, action))
        self._bus.connection.emit_signal(None, _PATH, _NAME, "ActionInvoked", arguments)

    @property
    def total(self) -> int:
        """How many are on the screen, those included that wait_shown() was told to forget."""
        return self._last_id

    def _answer(self, *call: Any) -> None:
        method, arguments, invocation = call[4], call[5].unpack(), call[6]
        self.asked.set()
        if self._silent:
            return
        if method == "GetCapabilities":
            invocation.return_value(GLib.Variant("(as)", (["body", "actions"],)))
            return
        program, replaces, _icon, title, body, actions, hints, _timeout = arguments
        if not replaces:
            self._last_id += 1
        number = replaces or self._last_id
        entry = hints.get("desktop-entry", "")
        self._shown[number] = Notification(program, title, body, tuple(actions), entry)
        invocation.return_value(GLib.Variant("(u)", (number,)))
