# SPDX-License-Identifier: MIT
"""What the user had copied is there again after an insertion under KWin, byte by byte."""

import os

import test_clipboard_order
from harness.kwin.case import KwinCase
from harness.offer import Offer


class Clipboard(KwinCase):
    """The clipboard of another program, before and after an insertion."""

    def test_four_types_and_three_megabytes_come_back(self) -> None:
        had = [
            Offer("image/png", os.urandom(3_000_000)),
            Offer("text/html", b"<p>a</p>"),
            Offer("text/plain;charset=utf-8", "süß".encode()),
            Offer("application/x-empty", b""),
        ]
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.clipboard.own(had)
        self.insert(quorvane, editor)
        self.clipboard.wait_for(had)

    def test_an_empty_clipboard_is_empty_again(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.insert(quorvane, editor)
        self.clipboard.wait_empty()

    def test_a_copy_stays_when_the_panel_is_closed(self) -> None:
        quorvane = self.hidden_quorvane()
        self.summon(quorvane)
        text = quorvane.preview()
        quorvane.tree().find_role("push button", "Copy").press()
        self.clipboard.wait_data("text/plain;charset=utf-8", text.encode())
        quorvane.action("toggle")
        quorvane.wait_hidden()
        self.assertEqual(text.encode(), self.clipboard.data("text/plain;charset=utf-8"))


class ClipboardOrder(test_clipboard_order.ClipboardOrder, KwinCase):
    """Insertions, copies and clipboard managers, one after the other and in a hurry."""
