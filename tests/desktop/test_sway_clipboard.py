# SPDX-License-Identifier: MIT
"""What the user had copied is there again after an insertion under sway, byte by byte."""

import test_clipboard_order
import wayland_tests
from harness.offer import Offer, plain_text
from harness.sway.case import SwayCase


class Clipboard(wayland_tests.Clipboard, SwayCase):
    """The clipboard of another program, before and after an insertion."""

    def test_a_program_that_never_answers_costs_a_moment(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        had = plain_text("said in time")
        self.clipboard.own([*had, Offer("image/png", b"never said")], silent=["image/png"])
        self.insert(quorvane, editor)
        self.clipboard.wait_for(had)


class ClipboardOrder(test_clipboard_order.ClipboardOrder, SwayCase):
    """Insertions, copies and clipboard managers, one after the other and in a hurry."""
