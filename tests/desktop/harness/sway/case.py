# SPDX-License-Identifier: MIT
"""What the test cases under sway have in common."""

from ..wayland.case import WaylandCase
from ..wayland.keyboard import UsersKeyboard
from ..wayland.pointer import UsersPointer
from .session import SIZE, SwaySession


class SwayCase(WaylandCase):
    """A fresh sway session for each test; to be run by harness.sandbox."""

    session: SwaySession
    keyboard: UsersKeyboard  # type: ignore[assignment]
    mouse: UsersPointer  # type: ignore[assignment]

    scale = 1.0
    """Pixels of the screen for each point."""

    def make_session(self) -> SwaySession:
        return SwaySession(self.scale)

    def setUp(self) -> None:
        super().setUp()
        self.keyboard = UsersKeyboard(self.session.socket)
        self.addCleanup(self.keyboard.close)
        self.mouse = UsersPointer(self.session.socket, SIZE)
        self.addCleanup(self.mouse.close)
