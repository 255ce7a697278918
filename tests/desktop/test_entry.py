# SPDX-License-Identifier: MIT
"""Dates, times and zones, entered with real keys and a real pointer."""

import datetime

from harness.accessible import Accessible, State
from harness.case import DesktopCase
from harness.keys import SHORTCUT, Key
from harness.quorvane import Quorvane
from harness.waiting import wait_until


class EntryCase(DesktopCase):
    """A panel with what opens over it."""

    def setUp(self) -> None:
        super().setUp()
        self.quorvane = Quorvane(self.session)
        self.quorvane.wait_active()
        self.tree = self.quorvane.tree()

    def chip(self, description: str) -> Accessible:
        return self.tree.find_described("push button", description)

    def wait_shown(self, role: str, name: str) -> Accessible:
        return self.tree.find_role(role, name)

    def wait_gone(self, role: str, name: str) -> None:
        wait_until(lambda: not self.tree.shows(role, name), f"no {role} named {name}")

    def wait_preview(self, part: str) -> None:
        wait_until(lambda: part in self.quorvane.preview(), f'"{part}" in the preview')

    def wait_focused(self, description: str) -> None:
        wait_until(lambda: self.chip(description).has(State.FOCUSED), f"focus on {description}")

    def open_time(self) -> None:
        self.mouse.click(self.chip("Start time"))
        self.wait_shown("spin box", "Hour")

    def open_date(self) -> None:
        self.mouse.click(self.chip("Start date"))
        self.wait_shown("push button", "Next month")

    def chip_day(self) -> datetime.date:
        return datetime.datetime.strptime(self.chip("Start date").name, "%b %d, %Y").date()

    def wait_day(self, day: datetime.date) -> None:
        wait_until(lambda: self.chip_day() == day, f"the day {day}")


class Entry(EntryCase):
    """What opens over the panel, and what it does to the output."""

    def test_typed_and_stepped_time_reaches_the_output(self) -> None:
        self.open_time()
        self.keyboard.tap(Key.DIGIT_7)
        self.wait_preview(" at 7:")
        self.keyboard.tap(Key.TAB)
        self.keyboard.tap(Key.DIGIT_5)
        self.wait_preview(" at 7:05 ")
        self.keyboard.tap(Key.UP)
        self.wait_preview(" at 7:06 ")
        self.keyboard.tap(Key.LEFT)
        self.keyboard.tap(Key.DOWN)
        self.wait_preview(" at 6:06 ")
        self.keyboard.tap(Key.ALT, Key.P)
        self.wait_preview(" at 6:06 PM")

    def test_escape_closes_the_popover_only_and_gives_the_focus_back(self) -> None:
        self.open_time()
        self.keyboard.tap(Key.ESCAPE)
        self.wait_gone("spin box", "Hour")
        self.assertTrue(self.quorvane.is_active())
        self.wait_focused("Start time")
        self.keyboard.tap(Key.ESCAPE)
        self.quorvane.wait_hidden()

    def test_second_click_on_the_chip_closes_and_does_not_reopen(self) -> None:
        self.open_time()
        self.mouse.click(self.chip("Start time"))
        self.wait_gone("spin box", "Hour")
        # A further click opens: had the one before opened again, this would close.
        self.mouse.click(self.chip("Start time"))
        self.wait_shown("spin box", "Hour")

    def test_click_elsewhere_closes(self) -> None:
        self.open_time()
        left, top, width, _ = self.chip("Start date").extents
        self.mouse.click_at(left + width // 2, top - 40)
        self.wait_gone("spin box", "Hour")
        self.assertTrue(self.quorvane.is_active())

    def test_shortcut_works_while_a_popover_is_open(self) -> None:
        self.open_time()
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_hidden()
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_active()
        self.wait_gone("spin box", "Hour")

    def test_picked_day_reaches_the_output_and_paging_does_not(self) -> None:
        self.mouse.click(self.chip("Start date"))
        title = self.tree.find_role("push button", "Next month")
        before = self.quorvane.preview()
        self.mouse.click(title)
        self.keyboard.tap(Key.PAGE_UP)
        self.assertEqual(self.quorvane.preview(), before)
        self.keyboard.tap(Key.HOME)
        self.keyboard.tap(Key.RIGHT)
        self.keyboard.tap(Key.RETURN)
        wait_until(lambda: self.quorvane.preview() != before, "another day in the preview")
        # The time of day is what it was.
        self.assertEqual(self.quorvane.preview().split(" at ")[1], before.split(" at ")[1])

    def test_dates_are_typed_over_the_calendar(self) -> None:
        today = self.chip_day()
        self.open_date()
        for key in (Key.T, Key.O, Key.M, Key.O, Key.R, Key.R, Key.O, Key.W):
            self.keyboard.tap(key)
        wait_until(
            lambda: self.wait_shown("text", "Type a date").has(State.FOCUSED), "focus in the line"
        )
        self.keyboard.tap(Key.RETURN)
        self.wait_gone("push button", "Next month")
        self.wait_day(today + datetime.timedelta(days=1))
        # Distances count from the field's own date.
        self.open_date()
        self.keyboard.tap(Key.SHIFT, Key.EQUAL)
        self.keyboard.tap(Key.DIGIT_3)
        self.keyboard.tap(Key.RETURN)
        self.wait_gone("push button", "Next month")
        self.wait_day(today + datetime.timedelta(days=4))

    def test_nonsense_is_refused_and_escape_closes_the_line_first(self) -> None:
        before = self.chip_day()
        self.open_date()
        self.keyboard.tap(Key.X)
        line = self.wait_shown("text", "Type a date")
        wait_until(lambda: line.description == "Not a date", "the line's refusal")
        self.keyboard.tap(Key.RETURN)
        self.keyboard.tap(Key.ESCAPE)
        self.wait_gone("text", "Type a date")
        self.keyboard.tap(Key.ESCAPE)
        self.wait_gone("push button", "Next month")
        self.assertEqual(self.chip_day(), before)
        self.assertTrue(self.quorvane.is_active())

    def test_whole_time_is_typed_in_the_hour(self) -> None:
        self.open_time()
        for key in (Key.DIGIT_1, Key.DIGIT_4):
            self.keyboard.tap(key)
        self.keyboard.tap(Key.SHIFT, Key.SEMICOLON)
        for key in (Key.DIGIT_0, Key.DIGIT_5):
            self.keyboard.tap(key)
        self.wait_preview(" at 2:05 PM")
        self.keyboard.tap(Key.RETURN)
        self.wait_gone("spin box", "Hour")
        self.wait_focused("Start time")

    def test_zone_is_searched_and_picked_by_keyboard_alone(self) -> None:
        self.mouse.click(self.wait_shown("push button", "Add time zone"))
        wait_until(
            lambda: self.wait_shown("text", "Search").has(State.FOCUSED), "focus in the search"
        )
        self.keyboard.tap(Key.T)
        self.keyboard.tap(Key.O)
        self.keyboard.tap(Key.K)
        self.keyboard.tap(Key.Y)
        self.keyboard.tap(Key.RETURN)
        self.wait_preview("GMT+9")
        self.keyboard.tap(Key.ESCAPE)
        self.wait_gone("text", "Search")
        self.assertTrue(self.quorvane.is_active())

    def test_preset_is_chosen_from_its_list(self) -> None:
        self.mouse.click(self.wait_shown("combo box", "Format"))
        self.mouse.click(self.wait_shown("list item", "ISO 8601"))
        self.wait_gone("list item", "ISO 8601")
        wait_until(lambda: "T" in self.quorvane.preview()[:11], "an ISO 8601 preview")


class ComposedEntry(EntryCase):
    """Letters of several keys, as layouts have them."""

    def take_accents(self) -> None:
        """From now on the apostrophe is an acute accent that waits for a letter."""
        self.session.run(["setxkbmap", "-layout", "us", "-variant", "intl"])

    def test_letter_that_an_input_method_composes_opens_the_line(self) -> None:
        self.take_accents()
        self.open_date()
        self.keyboard.tap(Key.APOSTROPHE)
        self.keyboard.tap(Key.E)
        line = self.wait_shown("text", "Type a date")
        wait_until(lambda: line.text == "é", "the composed letter in the line")
        self.keyboard.tap(Key.T)
        wait_until(lambda: line.text == "ét", "the next letter behind it")
