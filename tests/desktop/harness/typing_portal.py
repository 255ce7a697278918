# SPDX-License-Identifier: MIT
"""The portal that lets programs type, and the user who is asked whether they may."""

import threading
from typing import Any

from gi.repository import GLib

from .keys import Key, Keyboard
from .request_portal import REFUSED, SUCCESS, RequestPortal
from .waiting import wait_until

_INTERFACE = "org.freedesktop.portal.RemoteDesktop"

_INTROSPECTION = f"""
<node>
  <interface name="{_INTERFACE}">
    <property name="AvailableDeviceTypes" type="u" access="read"/>
    <property name="version" type="u" access="read"/>
    <method name="CreateSession">
      <arg type="a{{sv}}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
    <method name="SelectDevices">
      <arg type="o" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
    <method name="Start">
      <arg type="o" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
    <method name="NotifyKeyboardKeycode">
      <arg type="o" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="i" direction="in"/>
      <arg type="u" direction="in"/>
    </method>
  </interface>
</node>
"""

_KEYBOARD = 1


class TypingPortal(RequestPortal):
    """Types on the display what programs send once the user has agreed, with the keys of evdev.

    From version 2 on it gives a token with each consent, which stands for the user once."""

    introspection = _INTROSPECTION

    def __init__(self, session_bus_address: str, display: str, version: int = 1) -> None:
        self.questions = 0
        """How often the user was asked."""
        self._keyboard: Keyboard | None = Keyboard(display)
        self._version = version
        self._token: str | None = None
        self._presented: str | None = None
        self._is_open = False
        self._waits = threading.Event()
        super().__init__(session_bus_address, self.introspection)

    def close(self) -> None:
        if self._keyboard:
            super().close()
            self._keyboard.close()
            self._keyboard = None

    def wait_asked(self) -> None:
        """Waits until the user is asked."""
        wait_until(self._waits.is_set, "the question to the user")

    def allow(self) -> None:
        """The user agrees."""
        self._waits.clear()
        self._consent()

    def refuse(self) -> None:
        """The user does not agree."""
        self._waits.clear()
        self._respond(REFUSED, {})

    def withdraw(self) -> None:
        """The user ends it, as by the mark that desktops show meanwhile."""
        self._is_open = False
        self._emit(
            self._session, "org.freedesktop.portal.Session", "Closed", GLib.Variant("(a{sv})", ({},))
        )

    def forget(self) -> None:
        """No token is good any more."""
        self._token = None

    def _read(self, *call: Any) -> GLib.Variant | None:
        is_version = call[4] == "version"
        return GLib.Variant("u", self._version if is_version else _KEYBOARD)

    def _answer(self, *call: Any) -> None:
        method, arguments, invocation = call[4], call[5].unpack(), call[6]
        if method == "NotifyKeyboardKeycode":
            self._type(arguments[2], arguments[3], invocation)
            return
        options = arguments[-1]
        self._begin_request(call[1], options, invocation)
        if method == "CreateSession":
            self._respond_with_session()
        elif method == "SelectDevices":
            self._presented = options.get("restore_token")
            self._respond(SUCCESS, {})
        elif self._presented and self._presented == self._token:
            self._consent()
        else:
            self.questions += 1
            self._waits.set()

    def _consent(self) -> None:
        results = {"devices": GLib.Variant("u", _KEYBOARD)}
        if self._version > 1:
            self._token = f"token for {self._session}"
            results["restore_token"] = GLib.Variant("s", self._token)
        self._is_open = True
        self._respond(SUCCESS, results | self._further_consent())

    def _further_consent(self) -> dict[str, GLib.Variant]:
        """What else the user agrees to at once."""
        return {}

    def _type(self, code: int, state: int, invocation: Any) -> None:
        if not self._is_open or not self._keyboard:
            invocation.return_dbus_error("org.freedesktop.DBus.Error.AccessDenied", "no session")
            return
        key = Key(code + 8)
        if state:
            self._keyboard.press(key)
        else:
            self._keyboard.release(key)
        invocation.return_value(None)
