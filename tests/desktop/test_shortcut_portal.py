# SPDX-License-Identifier: MIT
"""A desktop whose portal delivers the shortcut, once the user has had it added."""

import json

from harness.case import DesktopCase
from harness.quorvane import Quorvane, settings_file
from harness.shortcut_portal import ShortcutPortal
from harness.waiting import wait_until


class ShortcutByPortal(DesktopCase):
    """Nothing is asked at a start, and what was added before comes back."""

    def portal(self, *known: str) -> ShortcutPortal:
        portal = ShortcutPortal(self.session.environment["DBUS_SESSION_BUS_ADDRESS"], *known)
        self.addCleanup(portal.close)
        return portal

    def quorvane(self) -> Quorvane:
        quorvane = Quorvane(
            self.session,
            QUORVANE_BACKEND="shortcut=portal",
            QT_LOGGING_RULES="quorvane.portal=true",
        )
        quorvane.hide()
        return quorvane

    def has_added_it(self) -> None:
        file = settings_file(self.session)
        file.parent.mkdir(parents=True)
        file.write_text(json.dumps({"portalShortcut": True}))

    def test_each_press_shows_and_hides_the_panel(self) -> None:
        self.has_added_it()
        portal = self.portal("toggle")
        quorvane = self.quorvane()
        wait_until(
            lambda: "the portal has bound the shortcut" in self.session.logs(),
            "the program to have the shortcut",
        )
        portal.press("toggle")
        quorvane.wait_active()
        portal.press("toggle")
        quorvane.wait_hidden()

    def test_what_the_desktop_has_forgotten_is_not_asked_for_at_a_start(self) -> None:
        self.has_added_it()
        portal = self.portal()
        quorvane = self.quorvane()
        quorvane.action("toggle")
        quorvane.wait_active()
        self.assertEqual((), portal.bound)
