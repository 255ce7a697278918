# SPDX-License-Identifier: MIT
"""A user's other hand: a pointer that the X server takes for a real one."""

from Xlib import X
from Xlib.display import Display
from Xlib.ext import xtest

from .accessible import Accessible

_LEFT = 1
_RIGHT = 3
_WHEEL_UP = 4
_WHEEL_DOWN = 5


class Mouse:
    """Moves and presses on one display."""

    def __init__(self, display: str) -> None:
        self._display = Display(display)

    def close(self) -> None:
        """Ends the connection."""
        self._display.close()

    def click(self, target: Accessible) -> None:
        """Presses and releases the left button in the middle of something that shows."""
        left, top, width, height = target.extents
        self.click_at(left + width // 2, top + height // 2)

    def click_at(self, x: int, y: int, button: int = _LEFT) -> None:
        """The same at a place on the screen."""
        xtest.fake_input(self._display, X.MotionNotify, x=x, y=y)
        xtest.fake_input(self._display, X.ButtonPress, button)
        xtest.fake_input(self._display, X.ButtonRelease, button)
        self._display.sync()

    def turn_wheel(self, target: Accessible, notches: int) -> None:
        """Turns the wheel over something that shows, away from the user or, below zero, back."""
        left, top, width, height = target.extents
        self.move_to(left + width // 2, top + height // 2)
        for _ in range(abs(notches)):
            button = _WHEEL_UP if notches > 0 else _WHEEL_DOWN
            xtest.fake_input(self._display, X.ButtonPress, button)
            xtest.fake_input(self._display, X.ButtonRelease, button)
        self._display.sync()

    def move_to(self, x: int, y: int) -> None:
        """Moves the pointer, with whatever button is held."""
        xtest.fake_input(self._display, X.MotionNotify, x=x, y=y)
        self._display.sync()

    def press_at(self, x: int, y: int) -> None:
        """Presses the left button there and holds it."""
        self.move_to(x, y)
        xtest.fake_input(self._display, X.ButtonPress, _LEFT)
        self._display.sync()

    def release(self) -> None:
        """Lets go of the left button."""
        xtest.fake_input(self._display, X.ButtonRelease, _LEFT)
        self._display.sync()

    def flick(self, start: tuple[int, int], end: tuple[int, int]) -> None:
        """Presses at one place and releases at another, faster than any program looks."""
        xtest.fake_input(self._display, X.MotionNotify, x=start[0], y=start[1])
        xtest.fake_input(self._display, X.ButtonPress, _LEFT)
        xtest.fake_input(self._display, X.MotionNotify, x=end[0], y=end[1])
        xtest.fake_input(self._display, X.ButtonRelease, _LEFT)
        self._display.sync()

    def right_click_at(self, x: int, y: int) -> None:
        """The same with the right button."""
        self.click_at(x, y, _RIGHT)
