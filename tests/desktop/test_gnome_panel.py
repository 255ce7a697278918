# SPDX-License-Identifier: MIT
"""The panel under GNOME: called by the desktop's shortcut, over windows of Wayland."""

import json
from collections.abc import Callable

import screen_edge_tests
from harness.gnome.case import GnomeCase
from harness.gnome.pointer import Pointer
from harness.gnome.wayland_window import WaylandWindow
from harness.keys import SHORTCUT, Key
from harness.rounds import ROUNDS
from harness.waiting import wait_until


class Panel(GnomeCase):
    """Over a window of Wayland, of which the X server knows nothing."""

    def test_the_shortcut_brings_the_panel_with_the_focus_while_the_user_types(self) -> None:
        window = WaylandWindow(self.session)
        self.add_shortcut(self.shown_quorvane())
        window.wait_focused()
        for typed in range(ROUNDS):
            self.hands.tap(Key.A)
            window.wait_text("a" * (typed + 1))
            self.hands.tap(*SHORTCUT)
            panel = self.shell.wait_focused("Quorvane")
            self.assertTrue(panel.isAbove)
            self.assertTrue(panel.isOnAllWorkspaces)
            self.assertFalse(panel.wantsAttention)
            self.hands.tap(Key.ESCAPE)
            window.wait_focused()

    def test_the_panel_comes_back_where_the_user_put_it(self) -> None:
        folder = self.session.directory("state") / "quorvane"
        folder.mkdir()
        place = {"x": 60, "y": 90, "width": 400, "height": 1}
        (folder / "windows.json").write_text(json.dumps({"PanelV2": place}))
        self.shown_quorvane()
        wait_until(lambda: self.shell.window("Quorvane").frame[:2] == [60, 90], "the place")


class Edge(screen_edge_tests.ScreenEdge, GnomeCase):
    """Popovers, lists and menus over a panel in the corner of the screen."""

    def setUp(self) -> None:
        super().setUp()
        self.keyboard = self.hands
        self.mouse = Pointer(self.hands)

    def next_menu(self) -> Callable[[], screen_edge_tests.Frame]:
        return lambda: wait_until(self.shell.menu, "a menu", interval=0.05)
