# SPDX-License-Identifier: MIT
"""What Orca says of the program on the user's desktop."""

import os
import unittest

from harness.keys import SHORTCUT, Key, Keyboard
from harness.mouse import Mouse
from harness.quorvane import Quorvane
from harness.screen_reader import ScreenReader
from harness.session import Session
from harness.waiting import wait_until


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

    def go_to(self, role: str, name: str) -> None:
        """Puts the focus on a control and hears it read."""
        self.tree.find_role(role, name).focus()
        self.orca.wait_for(name)


class Panel(ScreenReaderCase):
    """The panel's sections."""

    def test_opening_tells_the_window_the_section_and_the_start(self) -> None:
        self.assertEqual(self.opening[:2], ["Quorvane.", "When panel."])
        self.assertRegex(self.opening[-2], "collapsed push button.$")

    def test_sections_are_told_where_tab_enters_them(self) -> None:
        self.go_to("check box", "to")
        heard = self.said(Key.TAB, until="Add time zone")
        self.assertEqual(heard, ["Time Zones panel.", "Add time zone push button."])

    def test_outcome_of_copy_is_said_once(self) -> None:
        self.go_to("push button", "Copy")
        self.assertEqual(self.said(Key.SPACE, until="Copied"), ["notification Copied."])
        wait_until(lambda: not self.tree.shows_named("Copied"), "the button to be as before")
        self.assertEqual(self.said(Key.TAB, until="Insert"), ["Insert push button."])

    def test_output_is_read_once_after_a_pause(self) -> None:
        self.go_to("check box", "Time")
        for state in ("not checked", "checked", "not checked"):
            self.assertEqual(self.said(Key.SPACE, until="checked"), [state])
        heard = self.orca.wait_for("notification")
        self.assertEqual(heard, [f"notification {self.quorvane.preview()}."])
        self.assertEqual(self.said(Key.TAB, until="Start date")[-1], "Start date.")


class Picker(ScreenReaderCase):
    """The list in which one searches for time zones."""

    def setUp(self) -> None:
        super().setUp()
        self.go_to("push button", "Add time zone")
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
