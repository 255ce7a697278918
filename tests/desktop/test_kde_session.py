# SPDX-License-Identifier: MIT
"""That a session of KWin is one: the user's keyboard, foreign programs and the clipboard."""

import os

from harness.keys import Key
from harness.kwin.case import KwinCase
from harness.offer import Offer, plain_text
from harness.targets import Terminal


class Session(KwinCase):
    """What the other tests under KWin stand on."""

    def test_keys_reach_programs_of_wayland_and_of_x11(self) -> None:
        editor = self.editor()
        self.keyboard.tap(Key.SHIFT, Key.A)
        self.keyboard.tap(Key.B)
        editor.wait_text("Ab")
        terminal = Terminal(self.session)
        self.keyboard.tap(Key.D)
        terminal.wait_text("d")
        editor.focus()
        self.keyboard.tap(Key.C)
        editor.wait_text("Abc")

    def test_the_clipboard_holds_what_a_program_copied(self) -> None:
        had = [Offer("image/png", os.urandom(3_000_000)), *plain_text("beside it")]
        self.clipboard.own(had)
        self.clipboard.wait_for(had)
