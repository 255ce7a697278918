# SPDX-License-Identifier: MIT
"""What the test cases under GNOME have in common."""

import json
from collections.abc import Sequence

from ..case import DesktopCase
from ..clipboard import Clipboard
from ..keys import Key
from ..quorvane import Quorvane, settings_file
from ..waiting import wait_until
from .session import GnomeSession

PREFERENCES = "Quorvane Preferences"
"""The title of that window."""


class GnomeCase(DesktopCase):
    """A fresh GNOME session for each test; to be run by harness.sandbox."""

    session: GnomeSession

    extensions: Sequence[str] = ()
    """What the shell of these tests is extended by."""

    def make_session(self) -> GnomeSession:
        return GnomeSession(self.extensions)

    def setUp(self) -> None:
        self.shell = self.session.shell
        self.hands = self.session.hands
        # Mutter shares the clipboard with the programs of X11, whatever has the focus.
        self.clipboard = Clipboard(self.session)
        self.addCleanup(self.clipboard.close)

    def settings(self, **stored: object) -> None:
        """What Quorvane finds stored at its start."""
        file = settings_file(self.session)
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps(stored))

    def shown_quorvane(self, **environment: str) -> Quorvane:
        """A running Quorvane whose panel has the focus."""
        quorvane = Quorvane(self.session, **environment)
        self.shell.wait_focused("Quorvane")
        return quorvane

    def add_shortcut(self, quorvane: Quorvane) -> None:
        """Makes the shortcut the desktop's, as the user does in the preferences.

        Those hide the panel.
        """
        quorvane.action("preferences")
        self.shell.wait_focused(PREFERENCES)
        tree = quorvane.tree()
        tree.find_role("push button", "Add to GNOME shortcuts").press()
        tree.find_role("push button", "Remove")
        self.hands.tap(Key.ESCAPE)
        wait_until(lambda: not self.shell.window(PREFERENCES), "the end of the preferences")
