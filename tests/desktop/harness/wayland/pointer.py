# SPDX-License-Identifier: MIT
"""The user's pointer under compositors that let programs bring one."""

import time
from pathlib import Path

from ..accessible import Accessible
from .connection import WaylandConnection

_CREATE = 0
_MOTION_ABSOLUTE, _BUTTON, _FRAME = 1, 2, 4

LEFT, RIGHT = 272, 273
"""Buttons by their evdev codes."""


class UsersPointer:
    """One pointer, from the start to close(); places are pixels of the only screen."""

    def __init__(self, display: Path, size: tuple[int, int]) -> None:
        self._size = size
        self._connection = WaylandConnection(display)
        seat = self._connection.bind("wl_seat", 1)
        manager = self._connection.bind("zwlr_virtual_pointer_manager_v1", 1)
        self._pointer = self._connection.make_object()
        self._connection.request(manager, _CREATE, seat, self._pointer)
        self._connection.settle()

    def close(self) -> None:
        """Takes the pointer away."""
        self._connection.close()

    def move_to(self, x: int, y: int) -> None:
        """Moves the pointer, with whatever button is held."""
        self._act(_MOTION_ABSOLUTE, x, y, *self._size)

    def press(self, button: int = LEFT) -> None:
        """Puts a button down."""
        self._act(_BUTTON, button, 1)

    def release(self, button: int = LEFT) -> None:
        """Lets a button go."""
        self._act(_BUTTON, button, 0)

    def click_at(self, x: int, y: int, button: int = LEFT) -> None:
        """Presses and releases at a place."""
        self.move_to(x, y)
        self.press(button)
        self.release(button)

    def click(self, target: Accessible) -> None:
        """Presses and releases in the middle of something that shows."""
        left, top, width, height = target.extents
        self.click_at(left + width // 2, top + height // 2)

    def _act(self, request: int, *arguments: int) -> None:
        now = time.monotonic_ns() // 1_000_000
        self._connection.request(self._pointer, request, now, *arguments)
        self._connection.request(self._pointer, _FRAME)
        self._connection.settle()
