# SPDX-License-Identifier: MIT
"""The global shortcut: what it does, and what the other applications see of it."""

from harness.case import DesktopCase
from harness.key_holder import KeyHolder
from harness.key_witness import KeyWitness, Stroke
from harness.keys import INSERT, SHORTCUT, Key


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

    def test_held_down_it_toggles_with_every_repeat_and_keeps_the_target(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        for key in SHORTCUT:
            self.keyboard.press(key)
        for _ in range(3):
            self.session.windows.wait(quorvane.panel, "the panel to show once more")
            quorvane.wait_hidden()
        for key in reversed(SHORTCUT):
            self.keyboard.release(key)
        quorvane.activate()
        quorvane.wait_active()
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

    def witness(self) -> KeyWitness:
        witness = KeyWitness(self.session)
        self.addCleanup(witness.close)
        return witness
