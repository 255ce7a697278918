# SPDX-License-Identifier: MIT
"""The user's keyboard and pointer under Mutter."""

import time
from collections.abc import Iterator
from contextlib import contextmanager

from gi.repository import GLib

from ..keys import Key
from ..message_bus import MessageBus

_REMOTE_DESKTOP = "org.gnome.Mutter.RemoteDesktop"
_SCREEN_CAST = "org.gnome.Mutter.ScreenCast"

_X_OFFSET = 8  # X counts keys from there, evdev from 0
_LEFT_BUTTON = 272
_BETWEEN_KEYS = 0.02  # seconds: no finger is faster, and Mutter then keeps the order for everybody


class Hands:
    """One keyboard and one pointer, there from the start to close()."""

    def __init__(self, address: str) -> None:
        self._bus = MessageBus(address)
        self._session = self._ask(_REMOTE_DESKTOP, "CreateSession")
        self._stream = self._watch_screen()
        self._act("Start")
        # Mutter makes the keyboard at its first key.
        self.tap(Key.SHIFT)

    def close(self) -> None:
        """Takes keyboard and pointer away; whatever is held is let go."""
        self._bus.close()

    def press(self, key: Key) -> None:
        """Puts a key down."""
        self._key(key, True)

    def release(self, key: Key) -> None:
        """Lets a key go."""
        self._key(key, False)

    def tap(self, *keys: Key) -> None:
        """Puts keys down in order and lets them go in reverse."""
        for key in keys:
            self.press(key)
        for key in reversed(keys):
            self.release(key)

    @contextmanager
    def held(self, *keys: Key) -> Iterator[None]:
        """Keeps keys down."""
        for key in keys:
            self.press(key)
        try:
            yield
        finally:
            for key in reversed(keys):
                self.release(key)

    def click(self, x: float, y: float, times: int = 1) -> None:
        """Moves to a place on the screen and presses the left button there."""
        self._act("NotifyPointerMotionAbsolute", "(sdd)", self._stream, x, y)
        for is_down in [True, False] * times:
            time.sleep(_BETWEEN_KEYS)
            self._act("NotifyPointerButton", "(ib)", _LEFT_BUTTON, is_down)

    def _key(self, key: Key, is_down: bool) -> None:
        self._act("NotifyKeyboardKeycode", "(ub)", key - _X_OFFSET, is_down)
        time.sleep(_BETWEEN_KEYS)

    def _watch_screen(self) -> str:
        """The monitor as a stream, in whose coordinates the pointer moves."""
        number = self._bus.call(
            _REMOTE_DESKTOP,
            self._session,
            "org.freedesktop.DBus.Properties",
            "Get",
            "(ss)",
            f"{_REMOTE_DESKTOP}.Session",
            "SessionId",
        )[0]
        options = {"remote-desktop-session-id": GLib.Variant("s", number)}
        cast = self._ask(_SCREEN_CAST, "CreateSession", "(a{sv})", options)
        record = (f"{_SCREEN_CAST}.Session", "RecordMonitor", "(sa{sv})")
        return self._bus.call(_SCREEN_CAST, cast, *record, "Meta-0", {})[0]

    def _ask(self, service: str, method: str, signature: str = "()", *values: object) -> str:
        path = "/" + service.replace(".", "/")
        return self._bus.call(service, path, service, method, signature, *values)[0]

    def _act(self, method: str, signature: str = "()", *values: object) -> None:
        interface = f"{_REMOTE_DESKTOP}.Session"
        self._bus.call(_REMOTE_DESKTOP, self._session, interface, method, signature, *values)
