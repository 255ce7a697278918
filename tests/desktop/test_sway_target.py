# SPDX-License-Identifier: MIT
"""Where a text goes under sway, and what becomes of it where it cannot go anywhere."""

import test_target
from harness.sway.case import SwayCase
from harness.waiting import wait_until
from harness.wayland.terminal import Foot


class ChosenTarget(test_target.ChosenTarget, SwayCase):
    """The text goes where the user works at that moment."""

    def test_the_tooltip_of_insert_names_it(self) -> None:
        editor = self.editor()
        terminal = Foot(self.session)
        quorvane = self.hidden_quorvane()
        editor.focus()
        self.summon(quorvane)
        insert = quorvane.tree().find_role("push button", "Insert")
        self.assertEqual("Insert into Mousepad (Ctrl+Return)", insert.description)
        terminal.focus()
        wait_until(
            lambda: insert.description == "Insert into Foot (Ctrl+Return)",
            f"the other name, not {insert.description}",
        )


class LostTarget(test_target.LostTarget, SwayCase):
    """Nothing is typed, the text is copied, and the user is told."""
