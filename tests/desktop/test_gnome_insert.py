# SPDX-License-Identifier: MIT
"""Insert and Copy under GNOME: typed through the portal into whatever has the keyboard."""

import re
from contextlib import suppress

from harness.gnome.case import GnomeCase
from harness.gnome.portal_dialog import PortalDialog, is_open, remembers
from harness.gnome.terminal import Terminal
from harness.gnome.wayland_window import WaylandWindow
from harness.keys import INSERT, SHORTCUT, Key
from harness.message_bus import BusError
from harness.quorvane import Quorvane
from harness.rounds import ROUNDS
from harness.targets import Editor
from harness.waiting import wait_until

_X11_EDITOR = ["env", "GDK_BACKEND=x11", "mousepad", "--disable-server"]
_COPIED = "Copied instead"

_BITS_OF_A_CLIENT = 21  # which the X server leaves to each for the numbers of its windows


class InsertCase(GnomeCase):
    """A user who has allowed typing in an earlier run, and two zones on two lines."""

    def setUp(self) -> None:
        super().setUp()
        self.settings(
            allowTyping=True,
            rememberFormatAndZones=True,
            multiZoneLayout="Lines",
            selectedTZs=["America/New_York", "Asia/Tokyo"],
        )

    def ready_quorvane(self) -> Quorvane:
        """A running Quorvane behind the window that was in front; the shortcut is the desktop's."""
        quorvane = self.shown_quorvane()
        self.add_shortcut(quorvane)
        return quorvane

    def allowed_quorvane(self, window: WaylandWindow) -> tuple[Quorvane, str]:
        """One that has typed into the window after the desktop's question; and what it typed."""
        quorvane = self.ready_quorvane()
        window.wait_focused()
        text = self.insert(quorvane)
        PortalDialog(self.session).allow()
        window.wait_text(text)
        return quorvane, text

    def insert(self, quorvane: Quorvane) -> str:
        """Calls the panel and inserts by its key; the text that is on its way."""
        self.hands.tap(*SHORTCUT)
        self.shell.wait_focused("Quorvane")
        text = quorvane.preview()
        self.hands.tap(*INSERT)
        return text

    def wait_told(self) -> None:
        """Waits until the user is told that the text was copied."""
        wait_until(
            lambda: _COPIED in [title for title, _body in self.shell.notifications()],
            "the notification",
            interval=0.05,
        )

    def clipboard_text(self) -> str:
        """The text on the clipboard."""
        return (self.clipboard.data("UTF8_STRING") or b"").decode()


class Insert(InsertCase):
    """With the desktop's permission."""

    def test_the_workflow_many_times_over_a_window_of_wayland(self) -> None:
        window = WaylandWindow(self.session)
        quorvane, _text = self.allowed_quorvane(window)
        had = window.copy()
        for _ in range(ROUNDS):
            before = window.text()
            text = self.insert(quorvane)
            self.assertEqual(1, text.count("\n"))
            window.wait_text(before + text)
            window.wait_focused()
            for offer in had:
                self.clipboard.wait_data(offer.target, offer.data)

    def test_the_text_arrives_in_a_terminal_and_in_a_program_of_x11(self) -> None:
        window = WaylandWindow(self.session)
        quorvane, _text = self.allowed_quorvane(window)
        terminal = Terminal(self.session)
        text = self.insert(quorvane)
        terminal.wait_text(text)
        terminal.wait_focused()
        editor = Editor(self.session, _X11_EDITOR)
        text = self.insert(quorvane)
        editor.wait_text(text)

    def test_shift_that_the_user_holds_does_not_change_the_paste(self) -> None:
        window = WaylandWindow(self.session)
        quorvane, before = self.allowed_quorvane(window)
        had = window.copy()
        self.clipboard.wait_data(had[0].target, had[0].data)
        self.hands.tap(*SHORTCUT)
        self.shell.wait_focused("Quorvane")
        text = quorvane.preview()
        with self.hands.held(Key.SHIFT):
            quorvane.tree().find_role("push button", "Insert").press()
            window.wait_text(before + text)
            # By then the last of the keys has been let go.
            self.clipboard.wait_data(had[0].target, had[0].data)
        self.hands.tap(Key.D)
        window.wait_text(before + text + "d")

    def test_two_insertions_in_a_hurry_both_arrive(self) -> None:
        window = WaylandWindow(self.session)
        quorvane, text = self.allowed_quorvane(window)
        had = window.copy()
        self.clipboard.wait_data(had[0].target, had[0].data)
        quorvane.action("insert")
        quorvane.action("insert")
        window.wait_text(text * 3)
        for offer in had:
            self.clipboard.wait_data(offer.target, offer.data)

    def test_an_empty_clipboard_is_empty_again(self) -> None:
        window = WaylandWindow(self.session)
        self.allowed_quorvane(window)
        wait_until(lambda: not self.clipboard_text(), "an empty clipboard", interval=0.05)


class Consent(InsertCase):
    """The desktop's question, and its indicator."""

    def test_the_question_comes_once(self) -> None:
        window = WaylandWindow(self.session)
        quorvane, before = self.allowed_quorvane(window)
        text = self.insert(quorvane)
        window.wait_text(before + text)
        self.assertFalse(is_open(self.session))

    def test_the_next_run_asks_again_where_the_portal_keeps_no_answer(self) -> None:
        window = WaylandWindow(self.session)
        quorvane, before = self.allowed_quorvane(window)
        self.assertEqual(0, quorvane.quit())
        text = self.shown_quorvane().preview()
        self.hands.tap(*INSERT)
        if not remembers(self.session):
            PortalDialog(self.session).allow()
        window.wait_text(before + text)
        self.assertFalse(is_open(self.session))

    def test_who_says_no_has_the_text_copied_and_is_told(self) -> None:
        window = WaylandWindow(self.session)
        quorvane = self.ready_quorvane()
        window.wait_focused()
        text = self.insert(quorvane)
        PortalDialog(self.session).cancel()
        self.wait_told()
        self.assertEqual(text, self.clipboard_text())
        self.assertEqual("", window.text())
        # Not asked again in this run.
        window.wait_focused()
        self.insert(quorvane)
        self.wait_told()
        self.assertFalse(is_open(self.session))

    def test_who_ends_it_at_the_indicator_has_the_text_copied_and_is_told(self) -> None:
        window = WaylandWindow(self.session)
        quorvane, before = self.allowed_quorvane(window)
        self.assertEqual([], [note for note in self.shell.notifications() if note[0] == _COPIED])
        # The hands' own session ends with it.
        with suppress(BusError):
            self.hands.click(*self.shell.remote_access_indicator())
        wait_until(lambda: not self.shell.has_remote_access(), "the end of the permission")
        quorvane.action("insert")
        self.wait_told()
        self.assertEqual(before, window.text())
        self.assertEqual(before, self.clipboard_text())

    def test_without_consent_the_text_is_copied_and_the_user_is_told(self) -> None:
        self.settings()
        window = WaylandWindow(self.session)
        quorvane = self.ready_quorvane()
        window.wait_focused()
        text = self.insert(quorvane)
        self.wait_told()
        self.assertEqual(text, self.clipboard_text())
        self.assertEqual("", window.text())
        self.assertFalse(is_open(self.session))


class Copy(InsertCase):
    """The button that needs no permission."""

    def test_what_was_copied_outlives_the_program(self) -> None:
        WaylandWindow(self.session)
        quorvane = self.shown_quorvane(QT_LOGGING_RULES="quorvane.pasteboard.owner=true")
        self.hands.tap(Key.ESCAPE)
        quorvane.action("copy")
        wait_until(lambda: "\n" in self.clipboard_text(), "the text on the clipboard")
        text = self.clipboard_text()
        # The program would wait for it at its end, but no longer than a second.
        wait_until(self.has_shell_read, "the shell to read the text")
        self.assertEqual(0, quorvane.quit())
        wait_until(lambda: self.clipboard_text() == text, "the text that lasts", interval=0.05)

    def has_shell_read(self) -> bool:
        """Whether a window of the shell's connection to the X server is among the readers."""
        readers = re.findall(r"0x([0-9a-f]+) has read", self.session.log("quorvane"))
        shell = _client_of(self.session.windows.manager())
        return shell in [_client_of(int(reader, 16)) for reader in readers]


def _client_of(window: int | None) -> int:
    return (window or 0) >> _BITS_OF_A_CLIENT
