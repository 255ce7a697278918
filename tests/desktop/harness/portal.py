# SPDX-License-Identifier: MIT
"""The desktop's settings portal, with what it says about the appearance of programs."""

from typing import Any

from gi.repository import GLib

from .bus_service import BusService

_NAME = "org.freedesktop.portal.Desktop"
_PATH = "/org/freedesktop/portal/desktop"
_INTERFACE = "org.freedesktop.portal.Settings"
_APPEARANCE = "org.freedesktop.appearance"

_INTROSPECTION = f"""
<node>
  <interface name="{_INTERFACE}">
    <method name="ReadAll">
      <arg type="as" direction="in"/>
      <arg type="a{{sa{{sv}}}}" direction="out"/>
    </method>
    <signal name="SettingChanged">
      <arg type="s"/><arg type="s"/><arg type="v"/>
    </signal>
  </interface>
</node>
"""

NO_PREFERENCE, DARK, LIGHT = range(3)
"""The values of color-scheme."""


class Portal(BusService):
    """A portal that tells what the test sets; a silent one takes questions and never answers."""

    def __init__(self, session_bus_address: str, silent: bool = False) -> None:
        self._silent = silent
        self._settings: dict[str, GLib.Variant] = {}
        super().__init__(session_bus_address, _NAME, _PATH, _INTROSPECTION)

    def set_scheme(self, scheme: int) -> None:
        """Says light, dark or nothing."""
        self._set("color-scheme", GLib.Variant("u", scheme))

    def set_accent(self, red: float, green: float, blue: float) -> None:
        """Names an accent, in sRGB from 0 to 1."""
        self._set("accent-color", GLib.Variant("(ddd)", (red, green, blue)))

    def set_high_contrast(self, high: bool) -> None:
        """Asks programs for more contrast, or no longer."""
        self._set("contrast", GLib.Variant("u", int(high)))

    def _set(self, key: str, value: GLib.Variant) -> None:
        self._settings[key] = value
        arguments = GLib.Variant("(ssv)", (_APPEARANCE, key, value))
        self._bus.connection.emit_signal(None, _PATH, _INTERFACE, "SettingChanged", arguments)

    def _answer(self, *call: Any) -> None:
        invocation = call[-1]
        if not self._silent:
            told = {_APPEARANCE: dict(self._settings)}
            invocation.return_value(GLib.Variant("(a{sa{sv}})", (told,)))
        self.asked.set()
