# SPDX-License-Identifier: MIT
"""The global shortcut: what it does, and what the other applications see of it."""

import signal

from harness.accessible import State
from harness.case import DesktopCase
from harness.key_holder import KeyHolder
from harness.key_witness import KeyWitness, Stroke
from harness.keys import INSERT, SHORTCUT, Key
from harness.quorvane import Quorvane
from harness.waiting import wait_until


class Shortcut(DesktopCase):
    """Control+Shift+Super+D, as long as the user records no other."""

    def test_pressed_again_it_hides_the_panel_and_the_application_has_the_focus(self) -> None:
        witness = self.witness()
        quorvane = self.hidden_quorvane()
        witness.wait_active()
        for _ in range(5):
            self.summon(quorvane)
            self.keyboard.tap(*SHORTCUT)
            quorvane.wait_hidden()
            witness.wait_active()

    def test_the_application_sees_its_release_but_not_its_press(self) -> None:
        witness = self.witness()
        quorvane = self.hidden_quorvane()
        witness.wait_active()
        witness.forget()
        self.summon(quorvane)
        witness.wait_for(Stroke(Key.D, down=False))
        self.assertNotIn(Stroke(Key.D, down=True), witness.strokes())

    def test_with_one_modifier_too_many_it_is_the_application_s(self) -> None:
        witness = self.witness()
        quorvane = self.hidden_quorvane()
        witness.wait_active()
        self.keyboard.tap(Key.ALT, *SHORTCUT)
        witness.wait_for(Stroke(Key.D, down=False))
        self.assertEqual([Stroke(Key.D, True), Stroke(Key.D, False)], witness.of(Key.D))
        # Had that press toggled the panel, the next one would hide it.
        self.summon(quorvane)

    def test_with_one_modifier_too_few_it_is_the_application_s(self) -> None:
        witness = self.witness()
        quorvane = self.hidden_quorvane()
        witness.wait_active()
        self.keyboard.tap(Key.CONTROL, Key.SUPER, Key.D)
        witness.wait_for(Stroke(Key.D, down=False))
        self.assertEqual([Stroke(Key.D, True), Stroke(Key.D, False)], witness.of(Key.D))
        self.summon(quorvane)

    def test_held_until_it_repeats_the_application_sees_its_release_alone(self) -> None:
        witness = self.witness()
        quorvane = self.logging_quorvane()
        self.summon(quorvane)
        witness.forget()
        self.hold_until_it_repeats()
        quorvane.wait_hidden()
        witness.wait_active()
        for key in reversed(SHORTCUT):
            self.keyboard.release(key)
        witness.wait_for(Stroke(Key.CONTROL, down=False))
        self.assertEqual([Stroke(Key.D, down=False)], witness.of(Key.D))

    def test_keys_typed_after_it_arrive_although_the_program_is_stopped(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        quorvane.process.send_signal(signal.SIGSTOP)
        self.keyboard.tap(*SHORTCUT)
        for key in (Key.D, Key.Q, Key.T):
            self.keyboard.tap(key)
        editor.wait_text("dqt")
        self.assertFalse(quorvane.is_active())
        quorvane.process.send_signal(signal.SIGCONT)
        quorvane.wait_active()

    def test_held_down_it_toggles_once_and_keeps_the_target(self) -> None:
        editor = self.editor()
        quorvane = self.logging_quorvane()
        editor.wait_active()
        self.hold_until_it_repeats()
        quorvane.wait_active()
        for key in reversed(SHORTCUT):
            self.keyboard.release(key)
        for _ in range(2):
            self.keyboard.tap(*SHORTCUT)
            quorvane.wait_hidden()
            self.summon(quorvane)
        text = quorvane.preview()
        self.keyboard.tap(*INSERT)
        editor.wait_text(text)

    def test_held_by_another_program_it_stays_silent_and_the_bus_still_works(self) -> None:
        holder = KeyHolder(self.session)
        self.addCleanup(holder.close)
        quorvane = self.hidden_quorvane()
        self.keyboard.tap(*SHORTCUT)
        holder.wait_press()
        quorvane.action("toggle")
        quorvane.wait_active()

    def test_held_by_another_program_it_works_once_that_program_is_gone(self) -> None:
        editor = self.editor()
        holder = KeyHolder(self.session)
        quorvane = self.hidden_quorvane()
        quorvane.action("preferences")
        words = quorvane.tree().find("Another program holds this shortcut.")
        holder.close()
        editor.focus()
        editor.wait_active()
        wait_until(lambda: not words.has(State.SHOWING), "the words to go")
        self.summon(quorvane)

    def logging_quorvane(self) -> Quorvane:
        """Waits for its shortcut, and writes down the repeats of a held key."""
        quorvane = Quorvane(self.session, QT_LOGGING_RULES="quorvane.shortcut.debug=true")
        quorvane.hide()
        return quorvane

    def hold_until_it_repeats(self) -> None:
        """Leaves the keys down."""
        for key in SHORTCUT:
            self.keyboard.press(key)
        wait_until(lambda: self.session.logs().count("a repeat of the key") >= 3, "three repeats")

    def witness(self) -> KeyWitness:
        witness = KeyWitness(self.session)
        self.addCleanup(witness.close)
        return witness
