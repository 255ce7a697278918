# SPDX-License-Identifier: MIT
"""A terminal takes its text from the other selection, and gets that back too."""

from harness.case import DesktopCase
from harness.keys import Key
from harness.offer import plain_text
from harness.targets import Terminal


class XTerm(DesktopCase):
    """xterm pastes with Shift+Insert, from PRIMARY; Control+V is a character to it."""

    def test_the_text_arrives_and_both_selections_come_back(self) -> None:
        terminal = Terminal(self.session)
        quorvane = self.hidden_quorvane()
        terminal.wait_active()
        copied, selected = plain_text("what was copied"), plain_text("what was selected")
        self.clipboard.own(copied)
        self.clipboard.own(selected, "PRIMARY")
        self.insert(quorvane, terminal)
        self.clipboard.wait_for(copied)
        self.clipboard.wait_for(selected, "PRIMARY")

    def test_another_application_s_selection_is_left_alone(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        owner = self.clipboard.own(plain_text("what was selected"), "PRIMARY")
        self.insert(quorvane, editor)
        self.clipboard.wait_empty()
        self.assertIsNone(owner.poll(), "the owner lost its selection")

    def test_without_a_latin_v_a_terminal_never_gets_what_was_selected(self) -> None:
        self.session.run(["setxkbmap", "ru"])
        terminal = Terminal(self.session, "Xfce4-terminal")
        quorvane = self.hidden_quorvane()
        terminal.wait_active()
        copied, selected = plain_text("what was copied"), plain_text("rm -rf selected")
        self.clipboard.own(copied)
        self.clipboard.own(selected, "PRIMARY")
        self.insert(quorvane, terminal)
        self.clipboard.wait_for(copied)
        self.clipboard.wait_for(selected, "PRIMARY")

    def test_no_modifier_stays_down_in_the_terminal(self) -> None:
        terminal = Terminal(self.session)
        quorvane = self.hidden_quorvane()
        terminal.wait_active()
        text = self.insert(quorvane, terminal)
        self.keyboard.tap(Key.D)
        terminal.wait_text(text + "d")
