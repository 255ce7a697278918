# SPDX-License-Identifier: MIT
"""From the shortcut to the text in the application, under sway."""

import test_workflow
from harness.keys import INSERT, SHORTCUT, Key
from harness.offer import plain_text
from harness.sway.case import SwayCase
from harness.targets import Terminal
from harness.waiting import wait_until
from harness.wayland.terminal import Foot


class Workflow(test_workflow.Workflow, SwayCase):
    """Into programs of Wayland and of X11."""

    rounds = 5

    def test_every_text_arrives_in_a_terminal(self) -> None:
        terminal = Foot(self.session)
        quorvane = self.hidden_quorvane()
        terminal.wait_active()
        had = plain_text("what the user had copied")
        self.clipboard.own(had)
        for _ in range(self.rounds):
            self.insert(quorvane, terminal)
            terminal.wait_active()
            self.clipboard.wait_for(had)

    def test_a_terminal_of_x11_pastes_what_is_marked(self) -> None:
        terminal = Terminal(self.session)
        quorvane = self.hidden_quorvane()
        terminal.wait_active()
        marked = plain_text("what the user had marked")
        self.clipboard.own(marked, "PRIMARY")
        self.insert(quorvane, terminal)
        self.clipboard.wait_for(marked, "PRIMARY")

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

    def test_the_layout_of_the_user_does_not_matter(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.keyboard.use_layout("ru")
        quorvane.action("insert")
        wait_until(editor.text, "the text")
        self.keyboard.tap(Key.D)
        wait_until(lambda: editor.text().endswith("в"), "a letter of the user's own layout")
