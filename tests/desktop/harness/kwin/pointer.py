# SPDX-License-Identifier: MIT
"""The user's other hand under KWin."""

from pathlib import Path

from ..accessible import Accessible
from ..wayland.connection import WaylandConnection

_AUTHENTICATE, _BUTTON, _MOVE_TO = 0, 2, 9
_FIXED = 256  # to one point

LEFT, RIGHT = 272, 273


class KwinPointer:
    """One pointer, from the start to close(); places are those of the screen, in points."""

    def __init__(self, display: Path) -> None:
        self._connection = WaylandConnection(display)
        self._input = self._connection.bind("org_kde_kwin_fake_input", 4)
        self._connection.request(self._input, _AUTHENTICATE, "tests", "a user's hand")
        self._connection.settle()

    def close(self) -> None:
        """Takes the pointer away."""
        self._connection.close()

    def move_to(self, x: int, y: int) -> None:
        """Moves the pointer, with whatever button is held."""
        self._connection.request(self._input, _MOVE_TO, x * _FIXED, y * _FIXED)
        self._connection.settle()

    def press_at(self, x: int, y: int) -> None:
        """Puts the left button down there and holds it."""
        self.move_to(x, y)
        self._act(LEFT, True)

    def release(self, button: int = LEFT) -> None:
        """Lets a button go."""
        self._act(button, False)

    def click_at(self, x: int, y: int, button: int = LEFT) -> None:
        """Presses and releases at a place."""
        self.move_to(x, y)
        self._act(button, True)
        self._act(button, False)

    def click(self, target: Accessible) -> None:
        """Presses and releases in the middle of something that shows."""
        left, top, width, height = target.extents
        self.click_at(left + width // 2, top + height // 2)

    def right_click_at(self, x: int, y: int) -> None:
        """The same with the right button."""
        self.click_at(x, y, RIGHT)

    def _act(self, button: int, is_down: bool) -> None:
        self._connection.request(self._input, _BUTTON, button, int(is_down))
        self._connection.settle()
