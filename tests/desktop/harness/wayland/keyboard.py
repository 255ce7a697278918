# SPDX-License-Identifier: MIT
"""The user's keyboard under compositors that let programs bring one."""

import os
import time
from collections.abc import Iterator
from contextlib import contextmanager
from pathlib import Path

from ..keys import Key
from .connection import WaylandConnection

_CREATE = 0
_KEYMAP, _KEY, _MODIFIERS = 0, 1, 2
_XKB_V1 = 1

_X_OFFSET = 8  # X counts keys from there, evdev from 0

# What the compositor looks up by its names.
_KEYMAP_TEXT = """\
xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+%s+inet(evdev)" };
};
"""

_MODIFIER_BITS = {Key.SHIFT: 1, Key.CONTROL: 4, Key.ALT: 8, Key.SUPER: 64}


class UsersKeyboard:
    """One keyboard that is there from the start to close(): the first key of a new one is lost."""

    def __init__(self, display: Path, layout: str = "us") -> None:
        self._connection = WaylandConnection(display)
        seat = self._connection.bind("wl_seat", 1)
        manager = self._connection.bind("zwp_virtual_keyboard_manager_v1", 1)
        self._keyboard = self._connection.make_object()
        self._connection.request(manager, _CREATE, seat, self._keyboard)
        self.use_layout(layout)
        self._held: list[Key] = []

    def use_layout(self, layout: str) -> None:
        """Changes what is printed on the keys, by a name that xkeyboard-config knows."""
        text = (_KEYMAP_TEXT % layout).encode() + b"\0"
        file = os.memfd_create("keymap")
        os.write(file, text)
        self._connection.request(self._keyboard, _KEYMAP, _XKB_V1, len(text), files=[file])
        os.close(file)
        self._connection.settle()

    def close(self) -> None:
        """Takes the keyboard away, as pulling its plug does."""
        self._connection.close()

    def press(self, key: Key) -> None:
        """Puts a key down."""
        self._press(key)
        self._connection.settle()

    def release(self, key: Key) -> None:
        """Lets a key go."""
        self._release(key)
        self._connection.settle()

    def tap(self, *keys: Key) -> None:
        """Puts keys down in order and lets them go in reverse, as fast as they are taken."""
        for key in keys:
            self._press(key)
        for key in reversed(keys):
            self._release(key)
        self._connection.settle()

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

    def _press(self, key: Key) -> None:
        self._key(key, True)
        self._held.append(key)
        self._tell_modifiers(key)

    def _release(self, key: Key) -> None:
        self._key(key, False)
        self._held.remove(key)
        self._tell_modifiers(key)

    def _key(self, key: Key, is_down: bool) -> None:
        now = time.monotonic_ns() // 1_000_000
        self._connection.request(self._keyboard, _KEY, now, key - _X_OFFSET, int(is_down))

    def _tell_modifiers(self, key: Key) -> None:
        # The compositor takes them from here, and does not work them out from the keys.
        if key in _MODIFIER_BITS:
            bits = sum({_MODIFIER_BITS.get(held, 0) for held in self._held})
            self._connection.request(self._keyboard, _MODIFIERS, bits, 0, 0, 0)
