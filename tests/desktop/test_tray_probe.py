# SPDX-License-Identifier: MIT
"""A status item in a real tray, by either protocol."""

from harness.case import DesktopCase
from harness.silent_watcher import SilentWatcher
from harness.status_item import SEPARATOR, StatusItem
from harness.tray import Tray
from harness.tray_probe import TrayProbe
from harness.waiting import wait_until

_MENU = ["Preferences…", "Check for Updates…", SEPARATOR, "Quit Quorvane"]


class TrayCase(DesktopCase):
    """A probe in a session; a tray where the test starts one."""

    def item(self) -> StatusItem:
        """The probe's item as the tray sees it on the bus."""
        item = StatusItem(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(item.close)
        return item

    def silent_watcher(self) -> SilentWatcher:
        """A watcher that takes questions and never answers, until it is closed."""
        return SilentWatcher(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])

    def choose_first(self) -> None:
        """Chooses the first entry of the menu that opens."""
        windows = self.session.windows
        left, top, _, height = windows.frame(windows.wait(windows.menu, "a menu"))
        self.mouse.click_at(left + height // 2, top + height // (2 * len(_MENU)))

    def assert_clickable(self, probe: TrayProbe, tray: Tray) -> None:
        """The icon shows, and the user's click arrives."""
        tray.wait_icon()
        self.mouse.click_at(*tray.place())
        probe.expect("left click")


class Items(TrayCase):
    """StatusNotifierItem: the host draws the menu."""

    def setUp(self) -> None:
        super().setUp()
        self.tray = Tray(self.session)

    def test_the_icon_has_a_name_and_a_menu_and_is_clicked(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        item = self.item()
        self.assertEqual("quorvane", item.property("Id"))
        self.assertEqual("Quorvane", item.property("ToolTip")[2])
        self.assertEqual(_MENU, item.menu())
        self.assertIsNone(probe.frame())
        self.assert_clickable(probe, self.tray)
        item.activate()
        probe.expect("left click")
        item.choose("Quit Quorvane")
        probe.expect("ran Quit Quorvane")

    def test_the_host_opens_the_menu_by_itself(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        self.tray.wait_icon()
        self.mouse.right_click_at(*self.tray.place())
        self.choose_first()
        probe.expect("ran Preferences…")
        self.assert_clickable(probe, self.tray)

    def test_a_host_that_comes_late_shows_the_icon(self) -> None:
        probe = TrayProbe(self.session)
        probe.expect("no button")
        self.assertIsNone(probe.frame())
        self.tray.start()
        probe.expect("button")
        self.assert_clickable(probe, self.tray)

    def test_a_host_that_starts_anew_shows_the_icon_again(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        self.tray.wait_icon()
        for _ in range(2):
            self.tray.stop()
            probe.expect("no button")
            self.tray.start()
            probe.expect("button")
            self.assert_clickable(probe, self.tray)

    def test_a_hidden_icon_leaves_the_tray_and_comes_back(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        self.tray.wait_icon()
        probe.order("hide")
        self.tray.wait_no_icon()
        probe.order("show")
        self.assert_clickable(probe, self.tray)

    def test_an_icon_that_is_hidden_while_the_host_starts_anew_stays_hidden(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        probe.order("hide")
        self.tray.stop()
        probe.expect("no button")
        self.tray.start()
        probe.expect("button")
        self.tray.wait_no_icon()
        probe.order("show")
        self.assert_clickable(probe, self.tray)

    def test_a_watcher_that_hangs_holds_nothing_up(self) -> None:
        watcher = self.silent_watcher()
        probe = TrayProbe(self.session)
        probe.expect("no button")
        self.assertIsNone(probe.frame())
        watcher.close()
        self.tray.start()
        probe.expect("button")
        self.assert_clickable(probe, self.tray)


class Embedded(TrayCase):
    """XEmbed: the icon is a window of the program's, which draws the menu too."""

    def setUp(self) -> None:
        super().setUp()
        # On a bus of its own the panel's other protocol is out of the program's sight.
        self.tray = Tray(self.session, bus=self.session.start_bus("other-bus"))

    def assert_in_place(self, probe: TrayProbe) -> None:
        """The program knows where its icon is."""
        x, y = self.tray.place()

        def is_in_place() -> bool:
            left, top, width, height = probe.frame() or (0, 0, 0, 0)
            return left <= x < left + width and top <= y < top + height

        wait_until(is_in_place, "the icon's place")

    def test_the_icon_is_clicked_and_opens_its_menu(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        self.assert_clickable(probe, self.tray)
        self.assert_in_place(probe)
        self.mouse.right_click_at(*self.tray.place())
        probe.expect("right click")
        self.choose_first()
        probe.expect("ran Preferences…")
        self.assert_clickable(probe, self.tray)

    def test_two_clicks_in_a_hurry_are_two_clicks(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        self.tray.wait_icon()
        self.mouse.click_at(*self.tray.place())
        self.mouse.click_at(*self.tray.place())
        probe.expect("left click", "left click")

    def test_a_host_that_comes_late_and_starts_anew_shows_the_icon(self) -> None:
        probe = TrayProbe(self.session)
        probe.expect("no button")
        for _ in range(2):
            self.tray.start()
            probe.expect("button")
            self.assert_clickable(probe, self.tray)
            self.assert_in_place(probe)
            self.tray.stop()
            probe.expect("no button")

    def test_a_hidden_icon_leaves_the_tray_and_comes_back(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("button")
        self.tray.wait_icon()
        probe.order("hide")
        self.tray.wait_no_icon()
        self.assertIsNone(probe.frame())
        probe.order("show")
        self.assert_clickable(probe, self.tray)

    def test_a_program_without_a_bus_has_an_icon(self) -> None:
        self.tray.start()
        probe = TrayProbe(self.session, DBUS_SESSION_BUS_ADDRESS="disabled:")
        probe.expect("button")
        self.assert_clickable(probe, self.tray)

    def test_a_watcher_that_hangs_is_waited_for_until_it_is_gone(self) -> None:
        watcher = self.silent_watcher()
        self.tray.start()
        probe = TrayProbe(self.session)
        probe.expect("no button")
        watcher.close()
        probe.expect("button")
        self.assert_clickable(probe, self.tray)
