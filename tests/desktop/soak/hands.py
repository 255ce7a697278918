# SPDX-License-Identifier: MIT
"""The user's fingers: on a keyboard of their own, and where the layout has the keys."""

import ctypes
import ctypes.util
from collections.abc import Iterator
from contextlib import contextmanager

from harness.keys import Key, Keyboard

_CORE_KEYBOARD = 0x100  # XkbUseCoreKbd

SHIFT_MASK = 1 << 0
LOCK_MASK = 1 << 1
NUM_MASK = 1 << 4  # Mod2, by every layout used here
_ALL_MASKS = 0xFF


class Hands(Keyboard):
    """Presses the keys of a physical keyboard; what XTEST types comes from another one."""

    def __init__(self, display: str) -> None:
        super().__init__(display)
        self._device = self._physical_keyboard()
        self._moved: dict[Key, Key] = {}
        self._xlib = ctypes.CDLL(ctypes.util.find_library("X11"))
        self._xlib.XOpenDisplay.restype = ctypes.c_void_p
        self._xlib.XOpenDisplay.argtypes = [ctypes.c_char_p]
        self._connection = ctypes.c_void_p(self._xlib.XOpenDisplay(display.encode()))

    def close(self) -> None:
        self._xlib.XCloseDisplay(self._connection)
        super().close()

    @property
    def device(self) -> int:
        """The number by which the X server knows the physical keyboard."""
        return self._device

    def find(self, moved: dict[Key, Key]) -> None:
        """Says which keys the layout has moved, and where they are now."""
        self._moved = moved

    def press(self, key: Key) -> None:
        self._fake_on(self._device, 1, self._moved.get(key, key))

    def release(self, key: Key) -> None:
        self._fake_on(self._device, 2, self._moved.get(key, key))

    def tap(self, *keys: Key) -> None:
        for key in keys:
            self.press(key)
        for key in reversed(keys):
            self.release(key)

    @contextmanager
    def held(self, *keys: Key) -> Iterator[None]:
        for key in keys:
            self.press(key)
        try:
            yield
        finally:
            for key in reversed(keys):
                self.release(key)

    def lock(self, masks: int) -> None:
        """Locks exactly these modifiers, as Caps Lock, Num Lock and sticky keys do."""
        self._xlib.XkbLockModifiers(self._connection, _CORE_KEYBOARD, _ALL_MASKS, masks)
        self._xlib.XSync(self._connection, 0)

    def lock_group(self, number: int) -> None:
        """Goes to one of the layout's groups, the first of which is 0."""
        self._xlib.XkbLockGroup(self._connection, _CORE_KEYBOARD, number)
        self._xlib.XSync(self._connection, 0)
