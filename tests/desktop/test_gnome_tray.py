# SPDX-License-Identifier: MIT
"""Quorvane's icon in GNOME's bar: a click opens the menu, which leads to the panel."""

from harness.gnome.case import GnomeCase
from harness.gnome.indicator import EXTENSION, Indicator
from harness.gnome.wayland_window import WaylandWindow
from harness.waiting import wait_until

_MENU = ["Show Quorvane", "Preferences…", "Check for Updates…", "Quit Quorvane"]

_LIGHT = 200  # of 255


class Tray(GnomeCase):
    """With the extension that shows icons of programs."""

    extensions = (EXTENSION,)

    def test_the_menu_of_a_click_shows_the_panel(self) -> None:
        window = WaylandWindow(self.session)
        quorvane = self.shown_quorvane()
        quorvane.action("toggle")
        window.wait_focused()
        indicator = Indicator(self.session)
        indicator.click()
        self.assertEqual(_MENU, indicator.menu())
        indicator.choose("Show Quorvane")
        self.shell.wait_focused("Quorvane")

    def test_the_icon_is_light_on_the_black_bar(self) -> None:
        self.shown_quorvane()
        indicator = Indicator(self.session)
        wait_until(lambda: indicator.brightness() > _LIGHT, "a light icon", interval=0.1)
