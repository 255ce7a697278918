# SPDX-License-Identifier: MIT
"""What the test cases under sway have in common."""

from ..case import DesktopCase
from ..targets import EDITORS, Editor
from ..wayland.clipboard import WaylandClipboard
from ..wayland.keyboard import UsersKeyboard
from ..wayland.pointer import UsersPointer
from .session import SIZE, SwaySession


class SwayCase(DesktopCase):
    """A fresh sway session for each test; to be run by harness.sandbox."""

    session: SwaySession
    keyboard: UsersKeyboard  # type: ignore[assignment]
    mouse: UsersPointer  # type: ignore[assignment]
    clipboard: WaylandClipboard  # type: ignore[assignment]

    scale = 1.0
    """Pixels of the screen for each point."""

    def make_session(self) -> SwaySession:
        return SwaySession(self.scale)

    def editor(self, name: str = "mousepad") -> Editor:
        """An editor of Wayland; in the place of the others stands one of X11.

        Qt 5 finds the accessibility bus by the X server's root window, and under XWayland by luck.
        """
        command = EDITORS["mousepad"]
        if name != "mousepad":
            command = ["env", "GDK_BACKEND=x11", *command]
        return Editor(self.session, command)

    def setUp(self) -> None:
        self.keyboard = UsersKeyboard(self.session.socket)
        self.addCleanup(self.keyboard.close)
        self.mouse = UsersPointer(self.session.socket, SIZE)
        self.addCleanup(self.mouse.close)
        self.clipboard = WaylandClipboard(self.session.socket)
        self.addCleanup(self.clipboard.close)
