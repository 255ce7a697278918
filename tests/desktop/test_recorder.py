# SPDX-License-Identifier: MIT
"""Recording another shortcut in the preferences, with real keys."""

from harness.accessible import Accessible, State
from harness.case import DesktopCase
from harness.keys import SHORTCUT, Key
from harness.quorvane import Quorvane, wait_stored
from harness.waiting import wait_until

TITLE = "Quorvane Preferences"
BUTTON = "Record new shortcut"
SUPER_NOTICE = (
    "If your desktop opens a menu on Super alone, press Super last: "
    "pressed first, it opens that menu instead."
)


class Recorder(DesktopCase):
    """Control+Shift+Super+D is the shortcut until another one is recorded."""

    def test_a_recorded_shortcut_is_stored_and_armed_at_once(self) -> None:
        quorvane = self.recording_quorvane()
        self.keyboard.tap(Key.ALT, Key.SUPER, Key.K)
        quorvane.tree().find_described("panel", f"Alt, Super, K. {SUPER_NOTICE}")
        quorvane.tree().find(SUPER_NOTICE)
        wait_stored(self.session, hotKeyCode=40, hotKeyModifiers=0x900)
        wait_until(
            lambda: quorvane.tree().find(BUTTON).has(State.FOCUSED), "the focus at the button"
        )
        self.keyboard.tap(Key.ALT, Key.SUPER, Key.K)
        quorvane.wait_active()

    def test_the_press_that_is_recorded_does_not_show_the_panel_when_it_is_held(self) -> None:
        quorvane = self.recording_quorvane()
        for key in (Key.SUPER, Key.K):
            self.keyboard.press(key)
        wait_until(lambda: "a repeat of the key" in self.session.logs(), "a repeat")
        self.assertIsNone(quorvane.panel())
        for key in (Key.K, Key.SUPER):
            self.keyboard.release(key)
        self.keyboard.tap(Key.SUPER, Key.K)
        quorvane.wait_active()

    def test_alt_with_shift_is_shown_as_both(self) -> None:
        quorvane = self.recording_quorvane()
        with self.keyboard.held(Key.SHIFT, Key.ALT):
            quorvane.tree().find_described("panel", "Recording: Alt, Shift, Waiting for a key")
        quorvane.tree().find_described("panel", "Recording: Waiting for a key")

    def test_tab_and_return_are_recorded_and_do_nothing_else(self) -> None:
        quorvane = self.recording_quorvane()
        self.keyboard.tap(Key.TAB)
        self.keyboard.tap(Key.RETURN)
        self.keyboard.tap(Key.CONTROL, Key.TAB)
        quorvane.tree().find_described("panel", "Control, Tab")

    def test_escape_leaves_the_old_shortcut(self) -> None:
        quorvane = self.recording_quorvane()
        self.keyboard.tap(Key.SHIFT, Key.ESCAPE)
        quorvane.tree().find_described("panel", "Control, Shift, Super, D")
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_active()

    def test_the_armed_shortcut_shows_the_panel_and_the_recording_goes_on(self) -> None:
        quorvane = self.recording_quorvane()
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_active()
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        # Which window comes next is for the window manager to say; the user comes back to this one.
        self.session.windows.activate(self.preferences(quorvane))
        self.wait_preferences_active(quorvane)
        self.keyboard.tap(Key.CONTROL, Key.K)
        quorvane.tree().find_described("panel", "Control, K")

    def recording_quorvane(self) -> Quorvane:
        """With the preferences in front, and a recording under way."""
        quorvane = Quorvane(self.session, QT_LOGGING_RULES="quorvane.shortcut.debug=true")
        quorvane.hide()
        quorvane.action("preferences")
        self.wait_preferences_active(quorvane)
        button: Accessible = quorvane.tree().find(BUTTON)
        self.mouse.click(button)
        recording = quorvane.tree().find("Recording a new shortcut")
        wait_until(lambda: recording.has(State.FOCUSED), "the recording to have the focus")
        return quorvane

    def wait_preferences_active(self, quorvane: Quorvane) -> None:
        windows = self.session.windows
        window = self.preferences(quorvane)
        windows.wait(lambda: windows.active() == window, "the preferences to be active")

    def preferences(self, quorvane: Quorvane) -> int:
        """The window, as soon as it shows."""
        windows = self.session.windows
        return windows.wait(
            lambda: windows.of_process(quorvane.process.pid, TITLE), "the preferences"
        )
