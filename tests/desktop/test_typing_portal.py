# SPDX-License-Identifier: MIT
"""A desktop that lets programs type when the user agrees, and not before."""

import json

from harness.case import DesktopCase
from harness.keys import INSERT
from harness.notification_server import NotificationServer
from harness.offer import plain_text
from harness.quorvane import Quorvane, settings_file, stored_settings, wait_stored
from harness.targets import Editor, Target, Terminal
from harness.typing_portal import TypingPortal
from harness.waiting import wait_until

NO_WAY = "This desktop does not let Quorvane type. Paste with your usual keys."
_NO_WINDOW = "There was no window to type into. Paste with your usual keys."


class TypingByPortal(DesktopCase):
    """The user has chosen to allow typing in an earlier run."""

    version = 1
    has_allowed = True
    portal_type = TypingPortal

    def setUp(self) -> None:
        super().setUp()
        self.address = self.session.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.portal = self.portal_type(self.address, self.session.display, self.version)
        self.addCleanup(self.portal.close)
        self.server = NotificationServer(self.address)
        self.addCleanup(self.server.close)
        if self.has_allowed:
            file = settings_file(self.session)
            file.parent.mkdir(parents=True)
            file.write_text(json.dumps({"allowTyping": True}))

    def quorvane(self) -> Quorvane:
        quorvane = Quorvane(self.session, QUORVANE_BACKEND="keys=portal")
        quorvane.hide()
        return quorvane

    def ask(self, quorvane: Quorvane, target: Target) -> str:
        """Inserts, and leaves the question that comes of it to the test."""
        target.focus()
        self.summon(quorvane)
        text = quorvane.preview()
        self.keyboard.tap(*INSERT)
        quorvane.wait_hidden()
        self.portal.wait_asked()
        return text

    def ask_for_editor(self) -> tuple[Editor, Quorvane, str]:
        """The first insertion of a run, into an editor: both programs, and the text."""
        editor = self.editor()
        quorvane = self.quorvane()
        return editor, quorvane, self.ask(quorvane, editor)

    def expect_copy(self, text: str, body: str) -> None:
        self.assertEqual(body, self.server.wait_shown().body)
        self.server.clear()
        self.assertEqual(text.encode(), self.clipboard.data("UTF8_STRING"))


class Allowed(TypingByPortal):
    """The first insertion of a run asks, and later ones type at once."""

    def test_the_text_arrives_and_both_selections_come_back(self) -> None:
        editor = self.editor()
        quorvane = self.quorvane()
        copied, selected = plain_text("what was copied"), plain_text("what was selected")
        self.clipboard.own(copied)
        self.clipboard.own(selected, "PRIMARY")
        self.assertEqual(0, self.portal.questions)
        text = self.ask(quorvane, editor)
        self.portal.allow()
        editor.wait_text(text)
        self.clipboard.wait_for(copied)
        self.clipboard.wait_for(selected, "PRIMARY")
        self.insert(quorvane, editor)
        self.assertEqual(1, self.portal.questions)

    def test_a_terminal_gets_it_by_the_same_keys(self) -> None:
        terminal = Terminal(self.session)
        quorvane = self.quorvane()
        text = self.ask(quorvane, terminal)
        self.portal.allow()
        terminal.wait_text(text)

    def test_who_has_gone_elsewhere_meanwhile_gets_a_copy(self) -> None:
        terminal = Terminal(self.session)
        editor, _quorvane, text = self.ask_for_editor()
        terminal.focus()
        self.portal.allow()
        self.expect_copy(text, _NO_WINDOW)
        self.assertEqual("", editor.text())

    def test_a_second_one_is_copied_while_the_question_is_open(self) -> None:
        editor, quorvane, text = self.ask_for_editor()
        quorvane.action("insert")
        self.assertEqual(NO_WAY, self.server.wait_shown().body)
        self.portal.allow()
        editor.wait_text(text)


class NotAllowed(TypingByPortal):
    """Without the consent the text is copied, and nobody is asked twice."""

    def test_a_refusal_holds_for_the_run(self) -> None:
        _editor, quorvane, text = self.ask_for_editor()
        self.portal.refuse()
        self.expect_copy(text, NO_WAY)
        quorvane.action("insert")
        self.assertEqual(NO_WAY, self.server.wait_shown().body)
        self.assertEqual(1, self.portal.questions)

    def test_a_consent_that_is_taken_back(self) -> None:
        editor, quorvane, text = self.ask_for_editor()
        self.portal.allow()
        editor.wait_text(text)
        self.portal.withdraw()
        quorvane.action("insert")
        self.assertEqual(NO_WAY, self.server.wait_shown().body)
        self.assertEqual(text, editor.text())
        self.assertEqual(1, self.portal.questions)

    def test_a_portal_that_dies(self) -> None:
        _editor, _quorvane, text = self.ask_for_editor()
        self.portal.close()
        self.expect_copy(text, NO_WAY)


class Chosen(TypingByPortal):
    """The portal types where neither a compositor nor an X server does."""

    def test_it_is_asked_where_there_is_no_display_that_types(self) -> None:
        quorvane = Quorvane(self.session, QT_QPA_PLATFORM="offscreen", QUORVANE_BACKEND="")
        quorvane.action("insert")
        self.portal.wait_asked()

    def test_it_is_not_asked_on_an_x_server(self) -> None:
        editor = self.editor()
        quorvane = Quorvane(self.session, QUORVANE_BACKEND="")
        quorvane.hide()
        editor.focus()
        self.insert(quorvane, editor)
        self.assertEqual(0, self.portal.questions)


class NeverAllowed(TypingByPortal):
    """Who has never chosen to allow it is not asked, but shown where to choose it."""

    has_allowed = False

    def test_the_notification_leads_to_the_preferences(self) -> None:
        editor = self.editor()
        quorvane = self.quorvane()
        editor.focus()
        quorvane.action("insert")
        shown = self.server.wait_shown()
        self.assertEqual((NO_WAY, "Allow typing…"), (shown.body, shown.actions[1]))
        self.assertEqual(0, self.portal.questions)
        self.server.invoke(shown.actions[0])
        wait_until(
            lambda: self.session.windows.of_process(
                quorvane.process.pid, "Quorvane Preferences"
            ),
            "the preferences",
        )
        self.assertEqual(0, self.portal.questions)


class KeptConsent(TypingByPortal):
    """A portal of version 2 keeps the consent for the next run."""

    version = 2

    def test_the_next_run_asks_nobody(self) -> None:
        editor, quorvane, text = self.ask_for_editor()
        self.portal.allow()
        editor.wait_text(text)
        first = self.stored_token()
        self.assertEqual(0, quorvane.quit())
        quorvane = self.quorvane()
        editor.focus()
        before = editor.text()
        self.insert(quorvane, editor)
        self.assertTrue(editor.text().startswith(before))
        self.assertEqual(1, self.portal.questions)
        wait_until(lambda: self.stored_token() not in ("", first), "another token")

    def test_a_token_that_is_refused_is_forgotten(self) -> None:
        editor, quorvane, text = self.ask_for_editor()
        self.portal.allow()
        editor.wait_text(text)
        self.assertEqual(0, quorvane.quit())
        self.portal.forget()
        quorvane = self.quorvane()
        self.ask(quorvane, editor)
        self.portal.refuse()
        self.assertEqual(NO_WAY, self.server.wait_shown().body)
        wait_stored(self.session, typingToken="")

    def stored_token(self) -> str:
        wait_until(lambda: "typingToken" in stored_settings(self.session), "a token on the disk")
        return str(stored_settings(self.session)["typingToken"])
