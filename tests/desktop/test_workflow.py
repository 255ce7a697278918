# SPDX-License-Identifier: MIT
"""From the shortcut to the text in the application, many times in a row."""

from harness.case import DesktopCase
from harness.expected import long_form, now
from harness.keys import Key
from harness.offer import plain_text

class Workflow(DesktopCase):
    """What every insertion goes through, from the shortcut to the text."""

    rounds = 20
    """How often in a row."""

    def test_every_text_arrives_in_a_gtk_editor(self) -> None:
        self.walk("mousepad")

    def test_every_text_arrives_in_a_qt_editor(self) -> None:
        self.walk("featherpad")

    def test_shift_that_the_user_still_holds_does_not_reach_the_paste(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.focus()
        self.summon(quorvane)
        text = quorvane.preview()
        with self.keyboard.held(Key.SHIFT):
            quorvane.tree().find_role("push button", "Insert").press()
            editor.wait_text(text)
        self.keyboard.tap(Key.D)
        editor.wait_text(text + "d")

    def walk(self, name: str) -> None:
        had = plain_text("what the user had copied")
        editor = self.editor(name)
        quorvane = self.hidden_quorvane()
        # Where no window manager gives the focus back after the first panel, the user takes it.
        editor.focus()
        self.clipboard.own(had)
        for _ in range(self.rounds):
            before = now()
            text = self.insert(quorvane, editor)
            # It is of the minute in which the panel came, which may have ended since.
            self.assertIn(text, {long_form(before), long_form(now())})
            quorvane.wait_hidden()
            editor.wait_active()
            self.clipboard.wait_for(had)
