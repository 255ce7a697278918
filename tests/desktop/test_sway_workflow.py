# SPDX-License-Identifier: MIT
"""From the shortcut to the text in the application, under sway."""

import wayland_tests
from harness.keys import Key
from harness.offer import plain_text
from harness.sway.case import SwayCase
from harness.waiting import wait_until
from harness.wayland.terminal import Foot


class Workflow(wayland_tests.Workflow, SwayCase):
    """Into programs of Wayland and of X11."""

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

    def test_the_layout_of_the_user_does_not_matter(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.keyboard.use_layout("ru")
        quorvane.action("insert")
        wait_until(editor.text, "the text")
        self.keyboard.tap(Key.D)
        wait_until(lambda: editor.text().endswith("в"), "a letter of the user's own layout")
