# SPDX-License-Identifier: MIT
"""Quorvane as a process of a desktop: second starts, the bus, its end."""

import os

from harness.case import DesktopCase
from harness.ending_instance import EndingInstance
from harness.expected import long_form, now
from harness.keys import INSERT, SHORTCUT
from harness.offer import Offer, plain_text
from harness.quorvane import Quorvane


class Process(DesktopCase):
    """What a desktop's launcher, its key bindings and its log-out do with the program."""

    def test_a_second_start_shows_the_panel_of_the_first_and_ends(self) -> None:
        quorvane = self.hidden_quorvane()
        self.assertEqual(0, quorvane.launch().wait(10))
        quorvane.wait_active()

    def test_a_second_start_leaves_a_shown_panel_shown(self) -> None:
        quorvane = self.hidden_quorvane()
        self.summon(quorvane)
        self.assertEqual(0, quorvane.launch().wait(10))
        quorvane.wait_active()
        quorvane.action("toggle")
        quorvane.wait_hidden()

    def test_a_start_while_the_first_is_ending_is_a_first_start(self) -> None:
        first = EndingInstance(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        quorvane = Quorvane(self.session)
        first.end_when_called()
        quorvane.wait_active()

    def test_the_bus_can_show_the_panel(self) -> None:
        quorvane = self.hidden_quorvane()
        quorvane.activate()
        quorvane.wait_active()

    def test_the_bus_can_toggle_the_panel(self) -> None:
        quorvane = self.hidden_quorvane()
        quorvane.action("toggle")
        quorvane.wait_active()
        quorvane.action("toggle")
        quorvane.wait_hidden()

    def test_the_bus_can_insert(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.summon(quorvane)
        text = quorvane.preview()
        quorvane.action("insert")
        editor.wait_text(text)

    def test_the_bus_can_copy(self) -> None:
        quorvane = self.hidden_quorvane()
        self.summon(quorvane)
        text = quorvane.preview()
        quorvane.action("copy")
        self.clipboard.wait_data("UTF8_STRING", text.encode())
        offered = [offer.target for offer in self.clipboard.contents()]
        self.assertNotIn("x-kde-passwordManagerHint", offered)
        self.assertTrue(quorvane.is_active())

    def test_the_bus_can_open_the_preferences(self) -> None:
        quorvane = self.hidden_quorvane()
        quorvane.action("preferences")
        windows = self.session.windows
        windows.wait(
            lambda: windows.of_process(quorvane.process.pid, "Quorvane Preferences"),
            "the preferences",
        )

    def test_without_a_bus_it_works_all_the_same(self) -> None:
        editor = self.editor()
        before = now()
        quorvane = Quorvane(self.session, DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere")
        quorvane.wait_active()
        possible = {long_form(before), long_form(now())}
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        editor.wait_active()
        self.summon(quorvane)
        self.keyboard.tap(*INSERT)
        editor.wait_text(*possible)

    def test_it_quits_with_status_zero(self) -> None:
        self.assertEqual(0, self.hidden_quorvane().quit())

    def test_quitting_while_the_text_passes_restores_the_clipboard_first(self) -> None:
        self.clipboard.start_manager()
        had = [*plain_text("what the user had copied"), Offer("image/png", os.urandom(300_000))]
        self.quit_while_the_text_passes(had)
        self.clipboard.wait_for(had)

    def test_quitting_without_a_clipboard_manager_leaves_nothing_behind(self) -> None:
        self.quit_while_the_text_passes(plain_text("what the user had copied"))
        self.clipboard.wait_empty()

    def quit_while_the_text_passes(self, had: list[Offer]) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.clipboard.own(had)
        text = self.insert(quorvane, editor)
        self.assertEqual(text.encode(), self.clipboard.data("UTF8_STRING"))
        self.assertEqual(0, quorvane.quit())
