# SPDX-License-Identifier: MIT
"""The user's keyboard under KWin."""

from collections.abc import Iterator
from contextlib import contextmanager
from pathlib import Path

from ..keys import Key
from ..wayland.connection import WaylandConnection

_AUTHENTICATE, _KEY = 0, 10

_X_OFFSET = 8  # X counts keys from there, evdev from 0


class Hands:
    """One keyboard, from the start to close()."""

    def __init__(self, display: Path) -> None:
        self._connection = WaylandConnection(display)
        self._input = self._connection.bind("org_kde_kwin_fake_input", 4)
        self._connection.request(self._input, _AUTHENTICATE, "tests", "a user's hands")
        self._connection.settle()

    def close(self) -> None:
        """Takes the keyboard away."""
        self._connection.close()

    def press(self, key: Key) -> None:
        """Puts a key down."""
        self._key(key, True)
        self._connection.settle()

    def release(self, key: Key) -> None:
        """Lets a key go."""
        self._key(key, False)
        self._connection.settle()

    def tap(self, *keys: Key) -> None:
        """Puts keys down in order and lets them go in reverse, as fast as they are taken."""
        for key in keys:
            self._key(key, True)
        for key in reversed(keys):
            self._key(key, False)
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

    def _key(self, key: Key, is_down: bool) -> None:
        self._connection.request(self._input, _KEY, key - _X_OFFSET, int(is_down))
