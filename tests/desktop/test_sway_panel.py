# SPDX-License-Identifier: MIT
"""The panel and what opens over it, under sway."""

from collections.abc import Callable

import screen_edge_tests
import test_entry
import wayland_tests
from harness.keys import SHORTCUT
from harness.quorvane import Quorvane
from harness.sway.case import SwayCase
from harness.sway.picture import ScreenPicture
from harness.sway.session import SIZE
from harness.sway.windows import Frame
from harness.waiting import wait_until


class Panel(SwayCase):
    """A floating window on every workspace, where the user left it."""

    def test_it_floats_in_the_middle_until_the_user_moves_it(self) -> None:
        quorvane = Quorvane(self.session)
        windows = self.session.windows
        panel = quorvane.wait_active()
        left, top, width, height = windows.frame(panel)
        self.assertTrue(windows.is_floating(panel))
        self.assertLessEqual(abs(2 * left + width - SIZE[0]), 1)
        self.assertLessEqual(abs(2 * top + height - SIZE[1]), 1)

    def test_it_comes_back_where_the_user_dragged_it_after_a_restart_too(self) -> None:
        quorvane = Quorvane(self.session)
        place = self.drag(quorvane)
        for _ in range(2):
            self.keyboard.tap(*SHORTCUT)
            quorvane.wait_hidden()
            self.summon(quorvane)
            self.expect_at(place, quorvane)
        quorvane.quit()
        again = Quorvane(self.session)
        again.wait_active()
        self.expect_at(place, again)

    def test_it_follows_to_another_workspace(self) -> None:
        quorvane = Quorvane(self.session)
        panel = quorvane.wait_active()
        windows = self.session.windows
        windows.show_desktop(2)
        self.assertEqual(quorvane.panel(), panel)
        self.assertTrue(windows.is_on_all_desktops(panel))

    def test_it_shows_over_a_window_that_fills_the_screen(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        self.session.windows.command(editor.window, "fullscreen enable")
        self.summon(quorvane)

    def test_other_windows_keep_what_they_are(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.summon(quorvane)
        windows = self.session.windows
        self.assertFalse(windows.is_floating(editor.window))
        self.assertFalse(windows.is_on_all_desktops(editor.window))

    def test_its_key_caps_show_the_user_s_layout(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        quorvane.tree().find("D")

    def drag(self, quorvane: Quorvane) -> tuple[int, int]:
        windows = self.session.windows
        panel = quorvane.wait_active()
        start = windows.frame(panel)
        preview = quorvane.tree().find_role("text", "Preview")
        inside = preview.extents[0] - start[0]
        x, y = start[0] + start[2] // 2, start[1] + 20
        steps = iter(range(20, 400, 5))

        def follows() -> bool:
            self.mouse.move_to(x - next(steps), y)
            return windows.frame(panel) != start

        self.mouse.move_to(x, y)
        self.mouse.press()
        wait_until(follows, "the panel to follow the pointer", interval=0.02)
        self.mouse.move_to(x - 200, y + 60)
        self.mouse.release()
        place = windows.frame(panel)[:2]
        wait_until(lambda: preview.extents[0] - inside == place[0], "the program to know")
        return place

    def expect_at(self, place: tuple[int, int], quorvane: Quorvane) -> None:
        windows = self.session.windows
        windows.wait(
            lambda: windows.frame(quorvane.wait_active())[:2] == place, f"the panel at {place}"
        )


class Entry(test_entry.Entry, SwayCase):
    """Popovers, calendar and sheets over the panel, by keyboard and by pointer."""


class ComposedEntry(test_entry.ComposedEntry, SwayCase):
    """Letters of several keys, which Qt composes by itself here."""

    def take_accents(self) -> None:
        self.keyboard.use_layout("us(intl)")


class FocusGivenBack(wayland_tests.FocusGivenBack, SwayCase):
    """To the program in which the user works."""


class Edge(screen_edge_tests.ScreenEdge, SwayCase):
    """The same in the corner of the screen."""

    def begin(self, height: int) -> None:
        self.without_panel = ScreenPicture(self.session)
        super().begin(height)

    def next_menu(self) -> Callable[[], Frame]:
        before = wait_until(self.still_screen, "a still screen", interval=0.1)

        def frame() -> Frame:
            changed = wait_until(
                lambda: ScreenPicture(self.session).changed_from(before), "a menu", interval=0.1
            )
            left, top, width, height = changed
            # What reaches the edge may go on behind it.
            return left - 1, top - 1, width + 2, height + 2

        return frame

    def still_screen(self) -> ScreenPicture | None:
        first, second = ScreenPicture(self.session), ScreenPicture(self.session)
        # One in which the panel is yet to come is still as well.
        is_still = second.changed_from(self.without_panel) and not second.changed_from(first)
        return second if is_still else None


class Idle(wayland_tests.Idle, SwayCase):
    """With windows of Wayland and all services that sway has."""
