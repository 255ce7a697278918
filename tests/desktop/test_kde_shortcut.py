# SPDX-License-Identifier: MIT
"""The shortcut in step with System Settings, under KWin."""

from harness.accessible import Accessible
from harness.keys import SHORTCUT, Key
from harness.kwin.case import KwinCase
from harness.kwin.global_shortcuts import ALT, CONTROL, META, SHIFT
from harness.quorvane import Quorvane, wait_stored
from harness.waiting import wait_until

_USUAL = CONTROL | SHIFT | META | ord("D")
_RECORDED = ALT | META | ord("M")
_CHOSEN = CONTROL | ALT | ord("J")
_CHOSEN_KEYS = (Key.CONTROL, Key.ALT, Key.J)


class Shortcut(KwinCase):
    """Control+Shift+Super+D until the user chooses another one, here or there."""

    def test_a_change_in_system_settings_reaches_quorvane_and_lasts(self) -> None:
        quorvane = self.hidden_quorvane()
        self.shortcuts.wait_keys(_USUAL)
        self.shortcuts.change(_CHOSEN)
        wait_stored(self.session, hotKeyCode=38, hotKeyModifiers=0x1800)
        self.expect_shown_by(quorvane, *_CHOSEN_KEYS)
        quorvane.action("preferences")
        quorvane.tree().find_described("panel", "Control, Alt, J")
        quorvane.quit()
        again = self.hidden_quorvane()
        self.expect_shown_by(again, *_CHOSEN_KEYS)
        self.shortcuts.wait_keys(_CHOSEN)

    def test_a_change_while_quorvane_does_not_run_counts_too(self) -> None:
        self.hidden_quorvane().quit()
        self.shortcuts.change(_CHOSEN)
        self.expect_shown_by(self.hidden_quorvane(), *_CHOSEN_KEYS)
        wait_stored(self.session, hotKeyCode=38, hotKeyModifiers=0x1800)

    def test_a_recorded_shortcut_reaches_system_settings(self) -> None:
        quorvane = self.recording_quorvane()
        self.keyboard.tap(Key.ALT, Key.SUPER, Key.M)
        wait_stored(self.session, hotKeyCode=46, hotKeyModifiers=0x900)
        self.shortcuts.wait_keys(_RECORDED)
        self.expect_shown_by(quorvane, Key.ALT, Key.SUPER, Key.M)

    def test_one_that_another_program_has_is_named_with_it_and_had_once_that_is_free(self) -> None:
        self.shortcuts.take("Spectacle", _USUAL)
        quorvane = self.hidden_quorvane()
        quorvane.action("preferences")
        quorvane.tree().find("Spectacle holds this shortcut.")
        self.assertEqual("Spectacle", self.shortcuts.holder(_USUAL))
        self.shortcuts.give_back("Spectacle")
        # Asked for again by anything that the user does.
        quorvane.activate()
        self.shortcuts.wait_keys(_USUAL)

    def test_after_the_end_the_keys_are_the_applications(self) -> None:
        quorvane = self.hidden_quorvane()
        self.shortcuts.change(CONTROL | ord("J"))
        wait_stored(self.session, hotKeyCode=38, hotKeyModifiers=0x1000)
        editor = self.editor()
        self.assertEqual(0, quorvane.quit())
        wait_until(lambda: not self.shortcuts.is_active(), "the shortcut to be given back")
        self.keyboard.tap(Key.A)
        editor.wait_text("a")

    def test_held_down_it_toggles_once(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        for key in SHORTCUT:
            self.keyboard.press(key)
        quorvane.wait_active()
        wait_until(lambda: "a repeat of the key" in self.session.logs(), "a repeat")
        self.assertTrue(quorvane.is_active())
        for key in reversed(SHORTCUT):
            self.keyboard.release(key)
        self.expect_hidden_by(quorvane, *SHORTCUT)

    def recording_quorvane(self) -> Quorvane:
        quorvane = self.hidden_quorvane()
        quorvane.action("preferences")
        windows = self.session.windows
        preferences = windows.wait(
            lambda: windows.of_process(quorvane.process.pid, "Quorvane Preferences"), "preferences"
        )
        windows.wait(lambda: windows.active() == preferences, "the preferences to be active")
        self.record_button(quorvane).press()
        quorvane.tree().find_described("panel", "Recording: Waiting for a key")
        return quorvane

    def record_button(self, quorvane: Quorvane) -> Accessible:
        return quorvane.tree().find("Record new shortcut")

    def expect_shown_by(self, quorvane: Quorvane, *keys: Key) -> None:
        self.keyboard.tap(*keys)
        quorvane.wait_active()
        self.expect_hidden_by(quorvane, *keys)

    def expect_hidden_by(self, quorvane: Quorvane, *keys: Key) -> None:
        self.keyboard.tap(*keys)
        quorvane.wait_hidden()
