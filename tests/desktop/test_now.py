# SPDX-License-Identifier: MIT
"""What is offered is this moment, until the user enters another."""

import os
from datetime import UTC, datetime, timedelta
from pathlib import Path
from zoneinfo import ZoneInfo

from harness.case import DesktopCase
from harness.expected import ZONE, long_form
from harness.keys import SHORTCUT, Key
from harness.moved_clock import MovedClock
from harness.quorvane import Quorvane
from harness.waiting import wait_until


class FreshDates(DesktopCase):
    """The program runs on while its clock goes on."""

    def setUp(self) -> None:
        super().setUp()
        self.clock = MovedClock(self.session)
        self.addCleanup(self.clock.close)
        self.quorvane = Quorvane(self.session, **self.clock.environment)
        self.quorvane.hide()

    def present(self) -> datetime:
        """What clocks in the tests' zone show to the program."""
        return (datetime.now(UTC) + self.clock.ahead).astimezone(ZoneInfo(ZONE))

    def is_present(self, text: str) -> bool:
        """Whether it was the moment within the last minute."""
        moment = self.present()
        return text in (long_form(moment), long_form(moment - timedelta(minutes=1)))

    def expect_present(self, text: str) -> None:
        self.assertTrue(self.is_present(text), f"{text} at {self.present()}")

    def hide(self) -> None:
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_hidden()

    def test_each_showing_begins_with_this_moment_and_then_stands_still(self) -> None:
        for span in (timedelta(minutes=5), timedelta(days=3, hours=1)):
            self.clock.move(span)
            self.summon(self.quorvane)
            shown = self.quorvane.preview()
            self.expect_present(shown)
            self.clock.move(timedelta(minutes=10))
            self.quorvane.activate()
            self.quorvane.wait_active()
            self.assertEqual(shown, self.quorvane.preview())
            self.hide()

    def test_a_call_while_hidden_delivers_this_moment(self) -> None:
        self.clock.move(timedelta(hours=2))
        self.quorvane.action("copy")
        wait_until(self.clipboard.is_owned, "a copied text")
        self.expect_present((self.clipboard.data("UTF8_STRING") or b"").decode())
        editor = self.editor()
        editor.focus()
        self.clock.move(timedelta(hours=2))
        self.quorvane.action("insert")
        wait_until(lambda: self.is_present(editor.text()), "this moment in the editor")

    def test_an_entered_date_stays_until_now_takes_it_back(self) -> None:
        self.enter_a_date(self.quorvane)
        self.clock.move(timedelta(minutes=5))
        self.summon(self.quorvane)
        entered = self.quorvane.preview()
        self.assertFalse(self.is_present(entered))
        self.quorvane.tree().find_role("push button", "Now")
        self.keyboard.tap(Key.ALT, Key.N)
        wait_until(lambda: self.is_present(self.quorvane.preview()), "the present moment")
        tree = self.quorvane.tree()
        wait_until(lambda: not tree.shows("push button", "Now"), "the end of the button")


class Steps(DesktopCase):
    """A date is stepped without anything being opened."""

    def setUp(self) -> None:
        super().setUp()
        self.quorvane = Quorvane(self.session)
        self.quorvane.wait_active()
        self.tree = self.quorvane.tree()

    def wait_shown(self, chip: str, text: str) -> None:
        wait_until(
            lambda: self.tree.find_described("push button", chip).name == text,
            f'"{text}" as {chip}',
        )

    def test_arrows_step_the_day_that_has_the_focus(self) -> None:
        day = datetime.strptime(self.name_of("Start date"), "%b %d, %Y")
        for key, step in ((Key.UP, 1), (Key.UP, 2), (Key.DOWN, 1)):
            self.keyboard.tap(key)
            stepped = day + timedelta(days=step)
            self.wait_shown("Start date", f"{stepped:%b} {stepped.day}, {stepped.year}")
        self.assertTrue(self.quorvane.is_active())

    def test_the_wheel_steps_the_minute_below_the_pointer(self) -> None:
        time = datetime.strptime(self.name_of("Start time"), "%I:%M %p")
        for turn, step in ((3, 3), (-1, 2)):
            self.mouse.turn_wheel(self.tree.find_described("push button", "Start time"), turn)
            self.wait_shown("Start time", f"{time + timedelta(minutes=step):%I:%M %p}")

    def name_of(self, chip: str) -> str:
        return self.tree.find_described("push button", chip).name


class Zone(DesktopCase):
    """The zone is set while the program runs."""

    def test_a_zone_that_is_set_shows_at_once(self) -> None:
        file = self.session.directory("zone") / "localtime"
        _link(file, "America/New_York")
        quorvane = Quorvane(self.session, TZ=f":{file}")
        quorvane.wait_active()
        tree = quorvane.tree()
        before = quorvane.preview()
        _link(file, "Asia/Tokyo")
        wait_until(lambda: tree.shows("label", "(in local time Tokyo)"), "the new zone")
        self.assertEqual(before, quorvane.preview())


def _link(file: Path, zone: str) -> None:
    """As the system's own tools set the zone: a new link takes the place of the old one."""
    new = file.with_name("next")
    os.symlink(f"/usr/share/zoneinfo/{zone}", new)
    new.rename(file)
