# SPDX-License-Identifier: MIT
"""What the test cases under compositors of Wayland have in common."""

from ..case import DesktopCase
from ..targets import EDITORS, Editor
from .clipboard import WaylandClipboard


class WaylandCase(DesktopCase):
    """A fresh session for each test; to be run by harness.sandbox."""

    clipboard: WaylandClipboard  # type: ignore[assignment]

    def editor(self, name: str = "mousepad") -> Editor:
        """An editor of Wayland; in the place of the others stands one of X11.

        Qt 5 finds the accessibility bus by the X server's root window, and under XWayland by luck.
        """
        command = EDITORS["mousepad"]
        if name != "mousepad":
            command = ["env", "GDK_BACKEND=x11", *command]
        return Editor(self.session, command)

    def setUp(self) -> None:
        self.clipboard = WaylandClipboard(self.session.socket)
        self.addCleanup(self.clipboard.close)
