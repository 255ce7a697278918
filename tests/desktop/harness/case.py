# SPDX-License-Identifier: MIT
"""What the desktop test cases have in common."""

import os
import sys
import unittest

from .clipboard import Clipboard
from .keys import INSERT, SHORTCUT, Key, Keyboard
from .mouse import Mouse
from .private_session import PrivateSession
from .quorvane import Quorvane
from .session import Session
from .targets import EDITORS, Editor, Target
from .waiting import wait_until

_NO_WINDOW_MANAGER = "none"


class DesktopCase(unittest.TestCase):
    """A fresh session for each test, under the window manager that QUORVANE_TEST_WM names."""

    maxDiff = None
    session: PrivateSession

    def make_session(self) -> PrivateSession:
        """The session of one test."""
        name = os.environ.get("QUORVANE_TEST_WM", "openbox")
        return Session(None if name == _NO_WINDOW_MANAGER else name)

    def run(self, result: unittest.TestResult | None = None) -> unittest.TestResult | None:
        """Runs the test inside its session, and shows the session's logs if it fails."""
        with self.make_session() as self.session:
            before = troubles(result)
            outcome = super().run(result)
            if troubles(result) > before:
                print(self.session.logs(), file=sys.stderr)
        return outcome

    def setUp(self) -> None:
        self.keyboard = Keyboard(self.session.display)
        self.addCleanup(self.keyboard.close)
        self.mouse = Mouse(self.session.display)
        self.addCleanup(self.mouse.close)
        self.clipboard = Clipboard(self.session)
        self.addCleanup(self.clipboard.close)

    def editor(self, name: str = "mousepad") -> Editor:
        """An open editor with the focus."""
        return Editor(self.session, EDITORS[name])

    def hidden_quorvane(self) -> Quorvane:
        """A running Quorvane that waits for its shortcut."""
        quorvane = Quorvane(self.session)
        quorvane.hide()
        return quorvane

    def summon(self, quorvane: Quorvane) -> None:
        """Presses the shortcut and waits for the panel."""
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_active()

    def enter_a_date(self, quorvane: Quorvane) -> None:
        """Steps the start, with which all that follows is of one moment: nothing moves it on."""
        self.summon(quorvane)
        before = quorvane.preview()
        self.keyboard.tap(Key.UP)
        wait_until(lambda: quorvane.preview() != before, "another day in the preview")
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()

    def insert(self, quorvane: Quorvane, target: Target) -> str:
        """Runs the workflow from the shortcut to the text in the target, and returns the text."""
        before = target.text()
        self.summon(quorvane)
        text = quorvane.preview()
        self.keyboard.tap(*INSERT)
        target.wait_text(before + text)
        return text


def troubles(result: unittest.TestResult | None) -> int:
    """How many tests have failed so far."""
    return len(result.errors) + len(result.failures) if result else 0
