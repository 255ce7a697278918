# SPDX-License-Identifier: MIT
"""The shortcut from GNOME's portal, where the program is told to have it there."""

from harness.gnome.case import PREFERENCES, GnomeCase
from harness.gnome.wayland_window import WaylandWindow
from harness.keys import SHORTCUT, Key
from harness.quorvane import Quorvane
from harness.waiting import wait_until

_QUESTION = "Add Keyboard Shortcuts"
_ADD = "Add to GNOME shortcuts"


class Shortcut(GnomeCase):
    """Of a program that is known by its desktop entry."""

    def portal_quorvane(self) -> Quorvane:
        quorvane = Quorvane(
            self.session,
            QUORVANE_BACKEND="shortcut=portal",
            QT_LOGGING_RULES="quorvane.portal=true",
        )
        self.shell.wait_focused("Quorvane")
        return quorvane

    def ask(self, quorvane: Quorvane) -> None:
        """Has the desktop ask the user."""
        quorvane.action("preferences")
        self.shell.wait_focused(PREFERENCES)
        quorvane.tree().find_role("push button", _ADD).press()
        self.shell.wait_focused(_QUESTION)

    def wait_log(self, text: str) -> None:
        wait_until(lambda: text in self.session.log("quorvane"), text)

    def test_what_the_user_adds_shows_the_panel(self) -> None:
        window = WaylandWindow(self.session)
        quorvane = self.portal_quorvane()
        self.ask(quorvane)
        self.hands.tap(Key.ALT, Key.A)
        self.wait_log("the portal has bound the shortcut")
        self.shell.wait_focused(PREFERENCES)
        quorvane.tree().find_role("push button", "Remove")
        self.hands.tap(Key.ESCAPE)
        window.wait_focused()
        self.hands.tap(*SHORTCUT)
        self.shell.wait_focused("Quorvane")

    def test_who_says_no_can_be_asked_again(self) -> None:
        quorvane = self.portal_quorvane()
        self.ask(quorvane)
        self.hands.tap(Key.ESCAPE)
        self.wait_log("the portal has not bound the shortcut")
        self.ask(quorvane)
