# SPDX-License-Identifier: MIT
"""The panel's round corners and shadow, where a compositing manager runs."""

import json
import subprocess

from harness.case import DesktopCase
from harness.quorvane import Quorvane
from harness.screenshot import Picture
from harness.waiting import wait_until
from Xlib import X
from Xlib.display import Display
from Xlib.error import XError

_CONTENT_WIDTH = 504
_SHADOW = (9, 9, 3, 15)  # left, right, top, bottom

Frame = tuple[int, int, int, int]


class ShadowCase(DesktopCase):
    """A session in which compositing is switched on and off."""

    def setUp(self) -> None:
        super().setUp()
        self.display = Display(self.session.display)
        self.addCleanup(self.display.close)

    def start_compositing(self) -> subprocess.Popen[bytes]:
        manager = self.session.start(["picom", "--backend", "xrender", "--config", "/dev/null"])
        wait_until(self.is_composited, "a compositing manager")
        return manager

    def is_composited(self) -> bool:
        selection = self.display.get_atom("_NET_WM_CM_S0")
        return self.display.get_selection_owner(selection) != X.NONE

    def extents(self, window: int) -> tuple[int, ...]:
        target = self.display.create_resource_object("window", window)
        name = self.display.get_atom("_GTK_FRAME_EXTENTS")
        value = target.get_full_property(name, X.AnyPropertyType)
        return tuple(value.value) if value else (0, 0, 0, 0)

    def surface(self, quorvane: Quorvane) -> Frame:
        """The panel as one sees it."""
        window = quorvane.wait_active()
        x, y, width, height = self.session.windows.frame(window)
        left, right, top, bottom = self.extents(window)
        return x + left, y + top, width - left - right, height - top - bottom

    def wait_surface(self, quorvane: Quorvane, surface: Frame, shadow: tuple[int, ...]) -> None:
        def is_there() -> bool:
            try:
                extents = self.extents(quorvane.wait_active())
                return extents == shadow and self.surface(quorvane) == surface
            except XError:
                return False  # it got another window while it was looked at

        wait_until(is_there, f"the panel at {surface}")

    def wait_in_the_middle(self, quorvane: Quorvane) -> Frame:
        def centred() -> Frame | None:
            x, y, width, height = self.surface(quorvane)
            is_centred = (x, y, width) == (
                (1280 - _CONTENT_WIDTH) // 2, (800 - height) // 2, _CONTENT_WIDTH
            )
            return (x, y, width, height) if is_centred else None

        return wait_until(centred, "the panel in the middle of the screen")

    def pixel(self, x: int, y: int) -> int:
        return Picture(self.display, self.display.screen().root.id).color(x, y)

    def is_panel_at(self, quorvane: Quorvane, x: int, y: int) -> bool:
        """Whether a press there would be the panel's; its shadow lets it through."""
        self.mouse.move_to(x, y)
        child = self.display.screen().root.query_pointer().child
        if child == X.NONE:
            return False
        panel = quorvane.panel()
        tree = child.query_tree().children
        return child.id == panel or any(each.id == panel for each in tree)


class Shadow(ShadowCase):
    """With a compositing manager, and while one comes and goes."""

    def test_the_corners_are_round_and_the_shadow_is_no_part_of_the_panel(self) -> None:
        self.start_compositing()
        quorvane = Quorvane(self.session)
        x, y, width, height = self.wait_in_the_middle(quorvane)
        self.assertEqual(self.extents(quorvane.wait_active()), _SHADOW)
        ground = self.pixel(2, 2)
        wait_until(lambda: self.pixel(x + width // 2, y + 4) != ground, "the panel to be painted")
        inside = self.pixel(x + width // 2, y + 4)
        for corner_x in (x + 1, x + width - 2):
            for corner_y in (y + 1, y + height - 2):
                self.assertNotEqual(self.pixel(corner_x, corner_y), inside)

    def test_presses_on_the_shadow_go_to_what_is_below(self) -> None:
        self.start_compositing()
        quorvane = Quorvane(self.session)
        for _ in range(3):
            x, y, width, height = self.wait_in_the_middle(quorvane)
            self.wait_panel_at(quorvane, True, x + 2, y + height // 2)
            self.wait_panel_at(quorvane, False, x - 4, y + height // 2)
            self.wait_panel_at(quorvane, False, x + width + 4, y + 60)
            self.wait_panel_at(quorvane, False, x + 60, y + height + 6)
            self.mouse.move_to(1, 1)
            quorvane.hide()
            self.summon(quorvane)

    def wait_panel_at(self, quorvane: Quorvane, is_wanted: bool, x: int, y: int) -> None:
        wait_until(
            lambda: self.is_panel_at(quorvane, x, y) == is_wanted,
            f"{'the panel' if is_wanted else 'what is below'} at {x}, {y}",
        )

    def test_the_shadow_comes_and_goes_with_the_compositing_manager(self) -> None:
        quorvane = Quorvane(self.session)
        surface = self.wait_in_the_middle(quorvane)
        # A panel that does not know yet that it has the keyboard gets no other window.
        quorvane.wait_caught_up()
        manager = self.start_compositing()
        self.wait_surface(quorvane, surface, _SHADOW)
        self.session.stop(manager)
        self.wait_surface(quorvane, surface, (0, 0, 0, 0))
        x, y, width, height = surface
        ground = self.pixel(2, 2)
        # The plain panel fills its corners.
        wait_until(lambda: self.pixel(x + 2, y + 2) != ground, "square corners")
        self.start_compositing()
        self.wait_surface(quorvane, surface, _SHADOW)
        self.wait_panel_at(quorvane, True, x + width // 2, y + height - 4)

    def test_the_place_is_the_surfaces_with_and_without_a_shadow(self) -> None:
        manager = self.start_compositing()
        quorvane = Quorvane(self.session)
        before = self.wait_in_the_middle(quorvane)
        start = before[0] + 4, before[1] + before[3] // 2
        self.mouse.press_at(*start)
        self.addCleanup(self.mouse.release)
        ways = iter(range(20, 380, 4))

        def follows() -> bool:
            way = next(ways)
            self.mouse.move_to(start[0] - way, start[1] - way // 4)
            return self.surface(quorvane) != before

        wait_until(follows, "the panel to follow the pointer")
        self.mouse.release()
        wait_until(lambda: self.saved() == self.surface(quorvane)[:2], "the place to be saved")
        place = self.surface(quorvane)
        quorvane.hide()
        self.session.stop(manager)
        self.summon(quorvane)
        self.wait_surface(quorvane, place, (0, 0, 0, 0))

    def saved(self) -> tuple[int, int] | None:
        file = self.session.directory("state") / "quorvane" / "windows.json"
        frame = json.loads(file.read_text()).get("PanelV2") if file.exists() else None
        return (frame["x"], frame["y"]) if frame else None
