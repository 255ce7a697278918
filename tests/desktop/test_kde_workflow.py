# SPDX-License-Identifier: MIT
"""From the shortcut to the text in the application, under KWin."""

import wayland_tests
from harness.keys import Key
from harness.kwin.case import KwinCase


class Workflow(wayland_tests.Workflow, KwinCase):
    """Into programs of Wayland and of X11."""

    def test_shift_that_the_user_still_holds_does_not_reach_the_paste(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.focus()
        self.summon(quorvane)
        text = quorvane.preview()
        with self.keyboard.held(Key.SHIFT):
            quorvane.tree().find_role("push button", "Insert").press()
            # KWin 6 has nobody but the user let go of it: the keys wait for that.
            self.clipboard.wait_data("text/plain;charset=utf-8", text.encode())
        editor.wait_text(text)
        self.keyboard.tap(Key.D)
        editor.wait_text(text + "d")
