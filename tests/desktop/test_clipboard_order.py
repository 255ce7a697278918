# SPDX-License-Identifier: MIT
"""What the user copies beside an insertion is the user's, in every order."""

from harness.case import DesktopCase
from harness.keys import INSERT
from harness.offer import Offer, plain_text
from harness.targets import Terminal
from harness.waiting import wait_until

_MINE = plain_text("what the user had copied")
_NEWER = plain_text("what the user copies meanwhile")
_HINT = Offer("x-kde-passwordManagerHint", b"secret")


class ClipboardOrder(DesktopCase):
    """Insertions, copies and clipboard managers, one after the other and in a hurry."""

    def test_a_newer_copy_is_not_overwritten(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.focus()
        self.clipboard.own(_MINE)
        self.insert(quorvane, editor)
        self.clipboard.own(_NEWER)
        # A second insertion comes to its end after the restore of the first was due.
        self.insert(quorvane, editor)
        self.clipboard.wait_for(_NEWER)

    def test_two_insertions_in_a_hurry_give_back_what_was_there(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.focus()
        self.clipboard.own(_MINE)
        self.enter_a_date(quorvane)
        self.summon(quorvane)
        text = quorvane.preview()
        for _ in range(2):
            quorvane.action("insert")
        editor.wait_text(text + text)
        self.clipboard.wait_for(_MINE)

    def test_a_password_comes_back_with_its_hint(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.focus()
        password = [*plain_text("hunter2"), _HINT]
        self.clipboard.own(password)
        self.insert(quorvane, editor)
        self.clipboard.wait_for(password)

    def test_a_copy_in_the_panel_stays(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.focus()
        self.clipboard.own(_MINE)
        self.enter_a_date(quorvane)
        self.summon(quorvane)
        text = quorvane.preview()
        self.keyboard.tap(*INSERT)
        editor.wait_text(text)
        quorvane.action("copy")
        self.insert(quorvane, editor)
        wait_until(
            lambda: self.clipboard.data("UTF8_STRING") == text.encode()
            and self.clipboard.data(_HINT.target) is None,
            "the copied text, without the hint of a passing one",
        )

    def test_what_is_marked_meanwhile_is_not_overwritten(self) -> None:
        terminal = Terminal(self.session)
        quorvane = self.hidden_quorvane()
        terminal.focus()
        self.clipboard.own(_MINE)
        self.clipboard.own(_MINE, "PRIMARY")
        self.insert(quorvane, terminal)
        self.clipboard.own(_NEWER, "PRIMARY")
        # Both are restored at once, or one of them is not.
        self.clipboard.wait_for(_MINE)
        self.clipboard.wait_for(_NEWER, "PRIMARY")
