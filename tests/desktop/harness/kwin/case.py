# SPDX-License-Identifier: MIT
"""What the test cases under KWin have in common."""

from ..wayland.case import WaylandCase
from .global_shortcuts import GlobalShortcuts
from .keyboard import Hands
from .pointer import KwinPointer
from .session import KwinSession


class KwinCase(WaylandCase):
    """A fresh session of KWin for each test; to be run by harness.sandbox."""

    session: KwinSession
    keyboard: Hands  # type: ignore[assignment]
    mouse: KwinPointer  # type: ignore[assignment]

    scale = 1.0
    """Pixels of the screen for each point."""

    def make_session(self) -> KwinSession:
        return KwinSession(scale=self.scale)

    def setUp(self) -> None:
        super().setUp()
        self.keyboard = Hands(self.session.socket)
        self.addCleanup(self.keyboard.close)
        self.mouse = KwinPointer(self.session.socket)
        self.addCleanup(self.mouse.close)
        self.shortcuts = GlobalShortcuts(self.session.bus.address)
        self.addCleanup(self.shortcuts.close)
