# SPDX-License-Identifier: MIT
"""The panel and what opens over it, under KWin."""

import screen_edge_tests
import wayland_tests
from harness.kwin.case import KwinCase
from harness.place import PlaceCase
from harness.quorvane import Quorvane
from harness.windows import Windows


class PanelsPlace(PlaceCase, KwinCase):
    """A window of XWayland, where the user left it."""

    def test_in_the_middle_until_the_user_drags_it_and_there_after_a_restart(self) -> None:
        quorvane = Quorvane(self.session)
        for _ in range(2):
            self.wait_in_the_middle(quorvane)
            self.show_again(quorvane)
        self.wait_in_the_middle(quorvane)
        self.assertIsNone(self.saved_place())
        place = self.drag(quorvane)
        for _ in range(3):
            self.show_again(quorvane)
            self.wait_at(quorvane, *place)
        self.assertEqual(0, quorvane.quit())
        again = Quorvane(self.session)
        self.wait_at(again, *place)

    def test_it_follows_to_another_desktop_above_the_others(self) -> None:
        quorvane = self.hidden_quorvane()
        editor = self.editor()
        windows = self.session.windows
        windows.show_desktop(1)
        self.summon(quorvane)
        panel = quorvane.wait_active()
        windows.show_desktop(0)
        editor.focus()
        self.assertEqual(panel, quorvane.panel())
        self.assertTrue(windows.is_above(panel))
        self.assertTrue(windows.is_on_all_desktops(panel))
        self.assertFalse(windows.is_in_taskbar(panel))


class Scaled(PlaceCase, KwinCase):
    """On a screen with one and a half pixels for each point."""

    scale = 1.5

    def test_it_is_painted_in_the_screen_s_own_pixels_and_stays_where_it_was_dragged(self) -> None:
        quorvane = Quorvane(self.session)
        self.wait_in_the_middle(quorvane)
        points = self.frame(quorvane)[2]
        pixels = Windows(self.session.display)
        self.addCleanup(pixels.close)
        window = pixels.of_process(quorvane.process.pid, "Quorvane")
        assert window is not None
        # Its shadow included, which KWin does not count.
        self.assertGreaterEqual(pixels.frame(window)[2], points * self.scale)
        place = self.drag(quorvane)
        self.show_again(quorvane)
        self.wait_at(quorvane, *place, tolerance=1)


class FocusGivenBack(wayland_tests.FocusGivenBack, KwinCase):
    """To the program in which the user works."""


class Edge(screen_edge_tests.ScreenEdge, KwinCase):
    """Popovers, lists and menus over a panel in the corner of the screen."""


class Idle(wayland_tests.Idle, KwinCase):
    """With windows of X11 and all services that KWin has."""
