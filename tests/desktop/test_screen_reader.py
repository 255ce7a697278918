# SPDX-License-Identifier: MIT
"""What Orca says of the program on the user's desktop."""

import os
import unittest

from harness.keys import INSERT, SHORTCUT, Key, Keyboard
from harness.mouse import Mouse
from harness.quorvane import Quorvane
from harness.screen_reader import ScreenReader
from harness.session import Session


class ScreenReaderCase(unittest.TestCase):
    """One session and one Orca for all tests of a class; each test has a Quorvane of its own."""

    maxDiff = None
    session: Session
    orca: ScreenReader

    @classmethod
    def setUpClass(cls) -> None:
        cls.session = cls.enterClassContext(
            Session(os.environ.get("QUORVANE_TEST_WM", "openbox"))
        )
        cls.orca = ScreenReader(cls.session)
        cls.addClassCleanup(cls.orca.close)

    def setUp(self) -> None:
        self.keyboard = Keyboard(self.session.display)
        self.addCleanup(self.keyboard.close)
        self.mouse = Mouse(self.session.display)
        self.addCleanup(self.mouse.close)
        self.quorvane = Quorvane(self.session)
        self.addCleanup(self.session.stop, self.quorvane.process)
        # Its first window may come before it has asked who listens.
        self.quorvane.hide()
        self.orca.forget()
        self.opening = self.said(*SHORTCUT, until="Start date")
        self.tree = self.quorvane.tree()

    def said(self, *keys: Key, until: str) -> list[str]:
        """Presses a key, or several at once, and returns what is said up to a text."""
        self.keyboard.tap(*keys)
        return self.orca.wait_for(until)

    def go_to(self, role: str, name: str, until: str) -> None:
        """Puts the focus on a control and hears it read, up to a text."""
        self.tree.find_role(role, name).focus()
        self.orca.wait_for(until)


class Panel(ScreenReaderCase):
    """The panel's sections."""

    def test_opening_tells_the_window_the_section_and_the_start(self) -> None:
        window, section, hint, date, name = self.opening[-5:]
        self.assertEqual([window, section], ["Quorvane.", "When panel."])
        self.assertEqual([hint, name], ["(in local time EST)", "Start date."])
        self.assertRegex(date, "collapsed push button.$")

    def test_sections_are_told_where_tab_enters_them(self) -> None:
        self.go_to("check box", "to", until="to check box")
        heard = self.said(Key.TAB, until="Add time zone")
        self.assertEqual(heard, ["Time Zones panel.", "Add time zone push button."])

    def test_outcome_of_copy_is_said_once(self) -> None:
        self.go_to("push button", "Copy", until="Ctrl+C")
        self.assertEqual(self.said(Key.SPACE, until="Copied"), ["notification Copied."])
        self.assertEqual(self.said(Key.TAB, until="Insert"), ["Insert push button."])

    def test_output_is_read_once_after_a_pause(self) -> None:
        self.go_to("check box", "Time", until="Time check box")
        for state in ("not checked", "checked", "not checked"):
            self.assertEqual(self.said(Key.SPACE, until="checked"), [state])
        heard = self.orca.wait_for("notification")
        self.assertEqual(heard, [f"notification {self.quorvane.preview()}."])
        self.assertEqual(self.said(Key.TAB, until="Start date")[-1], "Start date.")


    def test_insert_without_a_target_says_that_it_has_copied(self) -> None:
        heard = self.said(*INSERT, until="notification")
        self.assertRegex(heard[-1], "^notification Copied instead. There was no window")


class Calendar(ScreenReaderCase):
    """The calendar of the start, opened by keyboard."""

    def setUp(self) -> None:
        super().setUp()
        self.said(Key.SPACE, until="push button")

    def test_each_day_is_read_once_where_the_cursor_comes(self) -> None:
        for key in (Key.PAGE_UP, Key.PAGE_UP, Key.DOWN):
            heard = self.said(key, until="push button")
            self.assertEqual(len(heard), 1, heard)
            self.assertRegex(heard[0], "day, .* push button.$")

    def test_typed_date_is_said_when_it_is_understood_and_when_it_is_refused(self) -> None:
        self.said(Key.T, until="Type a date")
        self.type(Key.O, Key.D)
        self.assertEqual(self.said(Key.RETURN, until="Not")[-1], "notification Not a date.")
        self.type(Key.A, Key.Y)
        self.assertRegex(self.orca.wait_for("notification")[-1], "day, [A-Z][a-z]+ [0-9]+, [0-9]+")
        self.said(Key.RETURN, until="Start date")

    def type(self, *keys: Key) -> None:
        """Writes a text, a letter after the other."""
        for key in keys:
            self.keyboard.tap(key)


class TimeOfDay(ScreenReaderCase):
    """Hour and minute of the start, opened by keyboard."""

    def setUp(self) -> None:
        super().setUp()
        self.tree.find_described("push button", "Start time").focus()
        self.orca.wait_for("Start time")
        self.keyboard.tap(Key.SPACE)

    def test_fields_are_numbers_and_a_step_says_the_next_one(self) -> None:
        self.assertRegex(self.orca.wait_for("Hour")[-1], "^Hour [0-9]+ spin button.$")
        minute = self.said(Key.RIGHT, until="Minute")[-1]
        self.assertRegex(minute, "^Minute [0-9]{2} spin button.$")
        following = f"{(int(minute.split()[1]) + 1) % 60:02}"
        heard = self.said(Key.UP, until=following)
        self.assertEqual([text for text in heard if "notification" not in text], [following])


class Recorder(ScreenReaderCase):
    """The preferences' control that records another shortcut."""

    def test_recording_is_told_and_what_was_recorded(self) -> None:
        self.said(Key.CONTROL, Key.COMMA, until="Control, Shift, Super, D")
        heard = self.said(Key.SPACE, until="Escape cancels")
        self.assertIn("Recording a new shortcut text.", heard)
        heard = self.said(Key.CONTROL, Key.ALT, Key.K, until="Control, Alt, K")
        self.assertEqual(heard, ["Record new shortcut push button.", "Control, Alt, K."])


class Picker(ScreenReaderCase):
    """The list in which one searches for time zones."""

    def setUp(self) -> None:
        super().setUp()
        self.go_to("push button", "Add time zone", until="Add time zone")
        self.keyboard.tap(Key.SPACE)
        self.orca.wait_for("Search by name")

    def test_results_and_their_number_are_told_when_the_typing_pauses(self) -> None:
        for key in (Key.B, Key.E, Key.R, Key.L):
            self.keyboard.tap(key)
        self.assertEqual(self.orca.wait_for("zone"), ["notification 1 time zone: Berlin."])
        heard = self.said(Key.RETURN, until="Berlin")
        self.assertEqual(heard, ["notification Berlin added."])
        heard = self.said(Key.RETURN, until="Berlin")
        self.assertEqual(heard, ["notification Berlin removed."])
