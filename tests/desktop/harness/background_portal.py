# SPDX-License-Identifier: MIT
"""The portal that lets programs of a sandbox start at login, and the user who is asked."""

from typing import Any

from gi.repository import GLib

from .request_portal import REFUSED, SUCCESS, RequestPortal
from .waiting import wait_until

_INTERFACE = "org.freedesktop.portal.Background"

_INTROSPECTION = f"""
<node>
  <interface name="{_INTERFACE}">
    <property name="version" type="u" access="read"/>
    <method name="RequestBackground">
      <arg type="s" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
  </interface>
</node>
"""


class BackgroundPortal(RequestPortal):
    """Asks about every change; the test answers in the user's name, or never."""

    def __init__(self, session_bus_address: str) -> None:
        self.wishes: list[dict[str, Any]] = []
        """What programs asked for, in order."""
        super().__init__(session_bus_address, _INTROSPECTION)

    def wait_asked(self, times: int) -> dict[str, Any]:
        """Waits for the question of that number, and returns what it is about."""
        wait_until(lambda: len(self.wishes) == times, f"question {times} to the user")
        return self.wishes[-1]

    def grant(self) -> None:
        """The user agrees to the last question."""
        wish = GLib.Variant("b", self.wishes[-1]["autostart"])
        self._respond(SUCCESS, {"background": GLib.Variant("b", True), "autostart": wish})

    def refuse(self) -> None:
        """The user does not."""
        self._respond(REFUSED, {})

    def _read(self, *call: Any) -> GLib.Variant | None:
        return GLib.Variant("u", 1)

    def _answer(self, *call: Any) -> None:
        options = call[5].unpack()[-1]
        self._begin_request(call[1], options, call[6])
        self.wishes.append(options)
