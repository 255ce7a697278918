# SPDX-License-Identifier: MIT
"""What a new user sees and hears first: the panel, and the shortcut that opens it."""

from harness.accessible import Accessible, State
from harness.case import DesktopCase
from harness.key_holder import KeyHolder
from harness.keys import Key
from harness.quorvane import Quorvane, wait_stored
from harness.waiting import wait_until

_HINT = "Ctrl+Shift+Super+D opens Quorvane in any application."
_DISMISS = "Do not show this again"


class FirstStart(DesktopCase):
    """Nobody has started the program before."""

    def setUp(self) -> None:
        super().setUp()
        self.session.is_new_user = True

    def quorvane(self) -> Quorvane:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        return quorvane

    def reach(self, wanted: Accessible) -> None:
        """Goes backwards from the field that has the keyboard first."""
        for _ in range(8):
            self.keyboard.tap(Key.SHIFT, Key.TAB)
            if self.gets_focus(wanted):
                return
        self.fail("it is not among the nearest controls")

    def gets_focus(self, wanted: Accessible) -> bool:
        tree = self.tree
        focused = wait_until(
            lambda: next((found for found in tree.showing() if found.has(State.FOCUSED)), None),
            "the focus",
        )
        return focused.name == wanted.name

    def test_the_line_is_reached_by_keyboard_and_dismissed_for_good(self) -> None:
        quorvane = self.quorvane()
        self.tree = quorvane.tree()
        self.tree.find_role("label", _HINT)
        self.assertEqual(_HINT, self.tree.find("Change…").description)
        self.reach(self.tree.find(_DISMISS))
        self.keyboard.tap(Key.SPACE)
        wait_until(lambda: not self.tree.shows_named(_HINT), "the line to go")
        wait_stored(self.session, shortcutHintDismissed=True)
        quorvane.quit()
        again = self.quorvane()
        again.tree().find("Insert")
        self.assertFalse(again.tree().shows_named(_HINT))

    def test_the_line_goes_once_the_shortcut_has_been_used(self) -> None:
        quorvane = self.quorvane()
        quorvane.tree().find_role("label", _HINT)
        quorvane.hide()
        self.summon(quorvane)
        self.assertFalse(quorvane.tree().shows_named(_HINT))
        wait_stored(self.session, shortcutHintDismissed=True)

    def test_it_leads_to_the_preferences_where_another_program_has_the_shortcut(self) -> None:
        holder = KeyHolder(self.session)
        self.addCleanup(holder.close)
        quorvane = self.quorvane()
        quorvane.tree().find_role("label", "The shortcut that opens Quorvane does not work here.")
        quorvane.tree().find("Set Up…").press()
        wait_until(
            lambda: quorvane.tree().find("Record new shortcut").has(State.FOCUSED),
            "the focus where the shortcut is changed",
        )
