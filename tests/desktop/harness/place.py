# SPDX-License-Identifier: MIT
"""A desktop test that looks at places, and moves the panel as a user does."""

import json
from collections.abc import Callable, Sequence

from .accessible import Accessible
from .case import DesktopCase
from .keys import Key
from .quorvane import Quorvane
from .waiting import wait_until

CONTENT_WIDTH = 504

Frame = tuple[int, int, int, int]
"""Left, top, width and height."""


class PlaceCase(DesktopCase):
    """The panel's place, seen and changed."""

    middles: Sequence[int] = (640,)  # of the screens

    def frame(self, quorvane: Quorvane) -> Frame:
        window = quorvane.panel()
        assert window is not None
        return self.session.windows.frame(window)

    def wait_at(self, quorvane: Quorvane, x: int, y: int, tolerance: int = 0) -> None:
        quorvane.wait_active()

        def is_there() -> bool:
            left, top, _, _ = self.frame(quorvane)
            return abs(left - x) <= tolerance and abs(top - y) <= tolerance

        self.wait_steady(quorvane, is_there, f"the panel at {x}, {y}")

    def show_again(self, quorvane: Quorvane) -> None:
        quorvane.hide()
        self.summon(quorvane)

    def change(self, quorvane: Quorvane, frame: Frame) -> None:
        """Gives the panel another frame as a window manager's own keys do: one of them is held."""
        window = quorvane.wait_active()
        x, y, width, height = frame
        with self.keyboard.held(Key.SUPER):
            self.session.windows.resize(window, width, height)
            self.session.windows.move(window, x, y)
            wait_until(lambda: self.saved_place() == (x, y), f"{x}, {y} to be saved")

    def move(self, quorvane: Quorvane, x: int, y: int) -> None:
        """Moves a panel that nobody has moved."""
        self.wait_in_the_middle(quorvane)
        self.change(quorvane, (x, y, *self.frame(quorvane)[2:]))

    def wait_in_the_middle(self, quorvane: Quorvane) -> None:
        """Waits for a panel that nobody has moved; a place in points may lie between pixels."""
        quorvane.wait_active()
        self.wait_steady(
            quorvane,
            lambda: self.is_in_the_middle(self.frame(quorvane)),
            "the panel in the middle of a screen",
        )

    def is_in_the_middle(self, frame: Frame) -> bool:
        """Whether a window stands in the middle of a screen."""
        left, top, width, height = frame
        is_centred = min(abs(left + width / 2 - middle) for middle in self.middles) <= 1
        return is_centred and abs(top + height / 2 - 400) <= 1

    def wait_steady(self, quorvane: Quorvane, condition: Callable[[], bool], what: str) -> None:
        """Waits until a window is there; window managers move it once more while it comes."""
        wait_until(condition, what)
        self.session.windows.let_manager_catch_up()
        # Answered, question by question, once the program has seen what the window manager did.
        quorvane.tree().shows("text", "Preview")
        self.assertTrue(condition())

    def drag(self, quorvane: Quorvane) -> tuple[int, int]:
        """Drags a panel that is at rest up and to the left, and returns its place."""
        left, top, _, height = self.frame(quorvane)
        start = left + 4, top + height // 2
        self.mouse.press_at(*start)
        self.addCleanup(self.mouse.release)
        # The window manager counts from where the pointer is when it takes it over.
        ways = iter(range(20, 380, 4))

        def follows() -> bool:
            way = next(ways)
            self.mouse.move_to(start[0] - way, start[1] - way // 4)
            return self.frame(quorvane)[:2] != (left, top)

        wait_until(follows, "the panel to follow the pointer")
        self.mouse.release()
        wait_until(lambda: self.saved_place() is not None, "the place to be saved")
        return self.frame(quorvane)[:2]

    def preview(self, quorvane: Quorvane) -> Accessible:
        return quorvane.tree().find_role("text", "Preview")

    def toggle_range(self, quorvane: Quorvane) -> None:
        """Has the panel grow or shrink, wherever the pointer is."""
        quorvane.tree().find_role("check box", "to").press()

    def point_outside(self) -> None:
        self.mouse.move_to(1, 1)

    def saved_place(self) -> tuple[int, int] | None:
        return self.saved("PanelV2")

    def saved(self, window: str) -> tuple[int, int] | None:
        file = self.session.directory("state") / "quorvane" / "windows.json"
        frame = json.loads(file.read_text()).get(window) if file.exists() else None
        return (frame["x"], frame["y"]) if frame else None
