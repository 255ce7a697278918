# SPDX-License-Identifier: MIT
"""Quorvane's icon in the bar of sway's users."""

from harness.quorvane import Quorvane
from harness.sway.case import SwayCase
from harness.sway.waybar import Waybar

_APART = 6  # pixels from the middle of the icon

# What Qt 6.8 ends a program with whose compositor has gone; 6.4 takes 1, as we do.
_STATUS_OF_NEWER_QT = 255


class Tray(SwayCase):
    """A bar of Wayland's own."""

    def test_clicks_on_the_icon_show_and_hide_the_panel(self) -> None:
        tray = Waybar(self.session)
        tray.start()
        quorvane = self.hidden_quorvane()
        tray.wait_icon()
        x, y = tray.place()
        for _ in range(3):
            # Apart from each other, or the bar takes them for a double click.
            self.mouse.click_at(x - _APART, y)
            quorvane.wait_active()
            self.mouse.click_at(x + _APART, y)
            quorvane.wait_hidden()

    def test_a_bar_that_comes_later_has_the_icon_too(self) -> None:
        quorvane = self.hidden_quorvane()
        tray = Waybar(self.session)
        tray.start()
        tray.wait_icon()
        self.mouse.click_at(*tray.place())
        quorvane.wait_active()


class End(SwayCase):
    """What becomes of the program when the compositor has gone."""

    def test_one_line_and_no_crash(self) -> None:
        quorvane = Quorvane(self.session, QT_LOGGING_RULES="quorvane.*=false")
        quorvane.wait_active()
        self.session.kill_compositor()
        status = quorvane.process.wait(10)
        # Qt's own connection, or ours, whichever hears of it first.
        (line,) = self.session.lines("quorvane")
        self.assertIn("connection", line)
        is_told_by_qt = "Wayland connection broke" in line
        self.assertIn(status, (1, _STATUS_OF_NEWER_QT) if is_told_by_qt else (1,))
