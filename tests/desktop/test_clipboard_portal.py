# SPDX-License-Identifier: MIT
"""A desktop that shares the clipboard with the programs that it lets type."""

from harness.clipboard_portal import ClipboardPortal
from harness.offer import Offer, plain_text
from harness.quorvane import Quorvane
from harness.waiting import wait_until
from test_typing_portal import NO_WAY, TypingByPortal

_FOUR_TYPES = [
    *plain_text("what was copied"),
    Offer("text/html", b"<b>what was copied</b>"),
    Offer("application/x-private", bytes(range(256))),
    Offer("image/png", b"\x89PNG" + bytes(256 * 1024)),
]


class SharedByPortal(TypingByPortal):
    """Neither a compositor nor an X server has the clipboard."""

    portal_type = ClipboardPortal

    def quorvane(self) -> Quorvane:
        quorvane = Quorvane(self.session, QUORVANE_BACKEND="keys=portal,clipboard=portal")
        quorvane.hide()
        return quorvane

    def test_the_text_arrives_and_what_was_copied_comes_back(self) -> None:
        editor = self.editor()
        quorvane = self.quorvane()
        self.clipboard.own(_FOUR_TYPES)
        text = self.ask(quorvane, editor)
        self.portal.allow()
        editor.wait_text(text)
        self.clipboard.wait_for(_FOUR_TYPES)
        editor.focus()
        self.insert(quorvane, editor)
        self.clipboard.wait_for(_FOUR_TYPES)

    def test_what_is_copied_lasts_until_another_program_copies(self) -> None:
        editor, quorvane, text = self.ask_for_editor()
        self.portal.allow()
        editor.wait_text(text)
        quorvane.action("copy")
        self.clipboard.wait_data("UTF8_STRING", text.encode())
        self.clipboard.own(plain_text("another"))
        self.insert(quorvane, editor)
        self.clipboard.wait_for(plain_text("another"))

    def test_it_is_chosen_where_no_display_has_a_clipboard(self) -> None:
        quorvane = Quorvane(self.session, QT_QPA_PLATFORM="offscreen", QUORVANE_BACKEND="")
        quorvane.action("insert")
        self.portal.wait_asked()
        self.portal.allow()
        quorvane.action("copy")
        wait_until(lambda: self.clipboard.data("UTF8_STRING"), "a text on the clipboard")

    def test_a_consent_that_is_taken_back(self) -> None:
        editor, quorvane, text = self.ask_for_editor()
        self.portal.allow()
        editor.wait_text(text)
        self.portal.withdraw()
        quorvane.action("insert")
        self.expect_copy(text, NO_WAY)
        self.assertEqual(text, editor.text())

    def test_a_refusal(self) -> None:
        _editor, _quorvane, text = self.ask_for_editor()
        self.portal.refuse()
        self.expect_copy(text, NO_WAY)

    def test_a_question_that_is_never_answered(self) -> None:
        _editor, quorvane, text = self.ask_for_editor()
        quorvane.action("insert")
        self.expect_copy(text, NO_WAY)
        self.assertEqual(0, quorvane.quit())
