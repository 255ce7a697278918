# SPDX-License-Identifier: MIT
"""The portal that delivers shortcuts, with what the user has had it add."""

from typing import Any

from gi.repository import GLib

from .bus_service import BusService

_NAME = "org.freedesktop.portal.Desktop"
_PATH = "/org/freedesktop/portal/desktop"
_INTERFACE = "org.freedesktop.portal.GlobalShortcuts"

_INTROSPECTION = f"""
<node>
  <interface name="{_INTERFACE}">
    <property name="version" type="u" access="read"/>
    <method name="CreateSession">
      <arg type="a{{sv}}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
    <method name="ListShortcuts">
      <arg type="o" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
    <method name="BindShortcuts">
      <arg type="o" direction="in"/>
      <arg type="a(sa{{sv}})" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
  </interface>
</node>
"""

_TRIGGER = "Ctrl+Shift+Meta+D"


class ShortcutPortal(BusService):
    """Agrees to every shortcut; `known` are those that were added in earlier runs."""

    def __init__(self, session_bus_address: str, *known: str) -> None:
        self.bound: tuple[str, ...] = ()
        """The shortcuts that a program of this moment has bound."""
        self._known = known
        self._client = ""
        self._session = ""
        super().__init__(session_bus_address, _NAME, _PATH, _INTROSPECTION)

    def press(self, shortcut: str) -> None:
        """The user presses the keys and lets them go."""
        for signal in ("Activated", "Deactivated"):
            self._emit(
                _PATH,
                _INTERFACE,
                signal,
                GLib.Variant("(osta{sv})", (self._session, shortcut, 1, {})),
            )

    def _read(self, *call: Any) -> GLib.Variant | None:
        return GLib.Variant("u", 1)

    def _answer(self, *call: Any) -> None:
        self._client, method, arguments, invocation = call[1], call[4], call[5].unpack(), call[6]
        options = arguments[-1]
        request = self._path_of("request", options["handle_token"])
        invocation.return_value(GLib.Variant("(o)", (request,)))
        if method == "CreateSession":
            self._session = self._path_of("session", options["session_handle_token"])
            results = {"session_handle": GLib.Variant("s", self._session)}
        elif method == "ListShortcuts":
            results = {"shortcuts": _listed(self._known)}
        else:
            self.bound = self._known = tuple(name for name, _traits in arguments[1])
            results = {"shortcuts": _listed(self.bound)}
        self._emit(
            request,
            "org.freedesktop.portal.Request",
            "Response",
            GLib.Variant("(ua{sv})", (0, results)),
        )

    def _path_of(self, kind: str, token: str) -> str:
        sender = self._client[1:].replace(".", "_")
        return f"{_PATH}/{kind}/{sender}/{token}"

    def _emit(self, path: str, interface: str, signal: str, arguments: GLib.Variant) -> None:
        self._bus.connection.emit_signal(self._client, path, interface, signal, arguments)


def _listed(shortcuts: tuple[str, ...]) -> GLib.Variant:
    traits = {"trigger_description": GLib.Variant("s", _TRIGGER)}
    return GLib.Variant("a(sa{sv})", [(shortcut, traits) for shortcut in shortcuts])
