# SPDX-License-Identifier: MIT
"""Quorvane's icon in a real tray: clicks, menu, popover."""

import json

from harness.case import DesktopCase
from harness.keys import Key
from harness.quorvane import Quorvane, settings_file
from harness.status_item import SEPARATOR, StatusItem
from harness.tray import Tray
from harness.waiting import wait_until

_MENU = ["Show Quorvane", "Preferences…", "Check for Updates…", SEPARATOR, "Quit Quorvane"]
_PREFERENCES = "Quorvane Preferences"

_NEAR = 16  # points between the popover and the bar that it hangs from


class TrayCase(DesktopCase):
    """A tray, and settings before the program starts."""

    def with_settings(self, **settings: object) -> Quorvane:
        """A program that finds these settings."""
        file = settings_file(self.session)
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps(settings))
        return Quorvane(self.session)

    def wait_popover(self) -> tuple[int, int, int, int]:
        """Waits until the popover is open; its place."""
        windows = self.session.windows
        return windows.frame(windows.wait(windows.menu, "the popover"))

    def wait_no_popover(self) -> None:
        """Waits until it is not."""
        windows = self.session.windows
        windows.wait(lambda: windows.menu() is None, "the end of the popover")

    def close_by_escape(self, quorvane: Quorvane) -> None:
        """Closes the popover by its key, once it answers and so has the keyboard."""
        quorvane.tree().find_role("push button", "Close")
        self.keyboard.tap(Key.ESCAPE)
        self.wait_no_popover()

    def click_icon(self) -> None:
        """The user's left click."""
        self.tray.wait_icon()
        self.mouse.click_at(*self.tray.place())

    def assert_hangs_from_icon(self, frame: tuple[int, int, int, int]) -> None:
        """The popover is above the lower bar and at the icon."""
        left, top, width, height = frame
        x, y = self.tray.place()
        self.assertLess(top + height, y)
        self.assertGreater(top + height, y - 2 * _NEAR)
        self.assertLessEqual(left, x)
        self.assertGreaterEqual(left + width, x - 2 * _NEAR)


class Items(TrayCase):
    """Under a host of StatusNotifierItems."""

    def setUp(self) -> None:
        super().setUp()
        self.tray = Tray(self.session)

    def item(self) -> StatusItem:
        """The icon as the tray sees it on the bus."""
        item = StatusItem(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(item.close)
        return item

    def test_the_menu_opens_the_preferences_and_ends_the_program(self) -> None:
        self.tray.start()
        quorvane = self.with_settings(presentationMode="Window")
        quorvane.wait_active()
        item = self.item()
        self.assertEqual(_MENU, item.menu())
        item.choose("Preferences…")
        pid = quorvane.process.pid
        self.session.windows.wait(
            lambda: self.session.windows.of_process(pid, _PREFERENCES), "the preferences"
        )
        item.choose("Quit Quorvane")
        self.assertEqual(0, quorvane.process.wait(10))

    def test_the_icon_is_light_on_a_dark_bar_though_the_desktop_is_light(self) -> None:
        self.tray = Tray(self.session, dark=True)
        self.tray.start()
        self.tray.wait_no_icon()
        bar = self.tray.shades()[0]
        self.with_settings(presentationMode="Window").wait_active()
        self.tray.wait_icon()
        wait_until(lambda: self.tray.shades()[-1] > 200, "a light icon")
        self.assertGreaterEqual(self.tray.shades()[0], bar, "no halo")

    def test_the_icon_is_dark_on_a_light_bar(self) -> None:
        self.tray.start()
        self.tray.wait_no_icon()
        bar = self.tray.shades()[-1]
        self.with_settings(presentationMode="Window").wait_active()
        self.tray.wait_icon()
        wait_until(lambda: self.tray.shades()[0] < 100, "a dark icon")
        self.assertLessEqual(self.tray.shades()[-1], bar, "no halo")

    def test_a_click_hides_the_panel_and_shows_it(self) -> None:
        self.tray.start()
        quorvane = self.with_settings(presentationMode="Window")
        quorvane.wait_active()
        self.click_icon()
        quorvane.wait_hidden()
        self.click_icon()
        quorvane.wait_active()

    def test_the_popover_opens_at_the_start_and_by_a_click_on_the_icon(self) -> None:
        self.tray.start()
        quorvane = self.with_settings(presentationMode="Popover")
        self.wait_popover()
        self.close_by_escape(quorvane)
        self.click_icon()
        self.assert_hangs_from_icon(self.wait_popover())

    def test_the_click_that_closes_the_popover_does_not_open_it_again(self) -> None:
        self.tray.start()
        quorvane = self.with_settings(presentationMode="Popover")
        self.wait_popover()
        self.click_icon()
        self.wait_no_popover()
        # Were it open again, this would close it.
        quorvane.action("toggle")
        self.wait_popover()

    def test_an_icon_that_is_switched_off_is_not_there(self) -> None:
        self.tray.start()
        quorvane = self.with_settings(presentationMode="Window", showInMenuBar=False)
        quorvane.wait_active()
        self.tray.wait_no_icon()

    def test_without_a_tray_the_popover_is_the_panel_until_there_is_one(self) -> None:
        quorvane = self.with_settings(presentationMode="Popover")
        quorvane.hide()
        self.tray.start()
        self.click_icon()
        self.assert_hangs_from_icon(self.wait_popover())


class Embedded(TrayCase):
    """Under a host of XEmbed icons."""

    def setUp(self) -> None:
        super().setUp()
        # On a bus of its own the panel's other protocol is out of the program's sight.
        self.tray = Tray(self.session, bus=self.session.start_bus("other-bus"))

    def test_the_popover_hangs_from_the_icon_and_the_menu_comes_and_goes(self) -> None:
        self.tray.start()
        quorvane = self.with_settings(presentationMode="Popover")
        self.wait_popover()
        self.close_by_escape(quorvane)
        self.tray.wait_icon()
        self.mouse.right_click_at(*self.tray.place())
        # The menu is ours here, and found like any other.
        self.mouse.click(quorvane.tree().find_role("menu item", "Preferences…"))
        pid = quorvane.process.pid
        self.session.windows.wait(
            lambda: self.session.windows.of_process(pid, _PREFERENCES), "the preferences"
        )
        self.click_icon()
        self.assert_hangs_from_icon(self.wait_popover())

    def test_a_tray_that_starts_anew_has_the_icon_again(self) -> None:
        self.tray.start()
        quorvane = self.with_settings(presentationMode="Window")
        quorvane.hide()
        self.tray.stop()
        self.tray.start()
        self.click_icon()
        quorvane.wait_active()
