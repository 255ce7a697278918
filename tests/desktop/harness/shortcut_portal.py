# SPDX-License-Identifier: MIT
"""The portal that delivers shortcuts, with what the user has had it add."""

from typing import Any

from gi.repository import GLib

from .request_portal import PATH, SUCCESS, RequestPortal

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


class ShortcutPortal(RequestPortal):
    """Agrees to every shortcut; `known` are those that were added in earlier runs."""

    def __init__(self, session_bus_address: str, *known: str) -> None:
        self.bound: tuple[str, ...] = ()
        """The shortcuts that a program of this moment has bound."""
        self._known = known
        super().__init__(session_bus_address, _INTROSPECTION)

    def press(self, shortcut: str) -> None:
        """The user presses the keys and lets them go."""
        for signal in ("Activated", "Deactivated"):
            self._emit(
                PATH,
                _INTERFACE,
                signal,
                GLib.Variant("(osta{sv})", (self._session, shortcut, 1, {})),
            )

    def _read(self, *call: Any) -> GLib.Variant | None:
        return GLib.Variant("u", 1)

    def _answer(self, *call: Any) -> None:
        method, arguments, invocation = call[4], call[5].unpack(), call[6]
        self._begin_request(call[1], arguments[-1], invocation)
        if method == "CreateSession":
            self._respond_with_session()
        elif method == "ListShortcuts":
            self._respond(SUCCESS, {"shortcuts": _listed(self._known)})
        else:
            self.bound = self._known = tuple(name for name, _traits in arguments[1])
            self._respond(SUCCESS, {"shortcuts": _listed(self.bound)})


def _listed(shortcuts: tuple[str, ...]) -> GLib.Variant:
    traits = {"trigger_description": GLib.Variant("s", _TRIGGER)}
    return GLib.Variant("a(sa{sv})", [(shortcut, traits) for shortcut in shortcuts])
