# SPDX-License-Identifier: MIT
"""From the shortcut to the text in the application, under KWin."""

from harness.keys import INSERT, SHORTCUT, Key
from harness.kwin.case import KwinCase
from harness.offer import plain_text
from harness.targets import Terminal
from harness.waiting import wait_until

_ROUNDS = 5


class Workflow(KwinCase):
    """Into programs of Wayland and of X11."""

    def test_every_text_arrives_in_a_program_of_wayland(self) -> None:
        had = plain_text("what the user had copied")
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.clipboard.own(had)
        for _ in range(_ROUNDS):
            self.insert(quorvane, editor)
            quorvane.wait_hidden()
            editor.wait_active()
            self.clipboard.wait_for(had)

    def test_a_terminal_of_x11_pastes_what_is_marked(self) -> None:
        terminal = Terminal(self.session)
        quorvane = self.hidden_quorvane()
        terminal.wait_active()
        marked = plain_text("what the user had marked")
        self.clipboard.own(marked, "PRIMARY")
        self.insert(quorvane, terminal)
        self.clipboard.wait_for(marked, "PRIMARY")

    def test_shift_that_the_user_still_holds_does_not_reach_the_paste(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.summon(quorvane)
        text = quorvane.preview()
        with self.keyboard.held(Key.SHIFT):
            quorvane.tree().find_role("push button", "Insert").press()
            editor.wait_text(text)
        self.keyboard.tap(Key.D)
        editor.wait_text(text + "d")

    def test_the_shortcut_in_the_middle_of_typing_costs_no_letter(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        for key in (Key.A, Key.B):
            self.keyboard.tap(key)
        self.summon(quorvane)
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        editor.wait_active()
        self.keyboard.tap(Key.C)
        editor.wait_text("abc")

    def test_a_text_of_several_lines_arrives_as_it_is(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.summon(quorvane)
        before = quorvane.preview()
        for zone in ("Tokyo", "Berlin"):
            quorvane.tree().find_role("push button", zone).press()
        quorvane.tree().find_role("radio button", "Lines").press()
        text = wait_until(
            lambda: len(quorvane.preview().splitlines()) == 3 and quorvane.preview(),
            f"three lines instead of {before}",
        )
        self.keyboard.tap(*INSERT)
        editor.wait_text(text)
