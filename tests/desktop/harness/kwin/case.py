# SPDX-License-Identifier: MIT
"""What the test cases under KWin have in common."""

from ..wayland.case import WaylandCase
from .global_shortcuts import GlobalShortcuts
from .keyboard import Hands
from .session import KwinSession


class KwinCase(WaylandCase):
    """A fresh session of KWin for each test; to be run by harness.sandbox."""

    session: KwinSession
    keyboard: Hands  # type: ignore[assignment]

    def make_session(self) -> KwinSession:
        return KwinSession()

    def setUp(self) -> None:
        super().setUp()
        self.keyboard = Hands(self.session.socket)
        self.addCleanup(self.keyboard.close)
        self.shortcuts = GlobalShortcuts(self.session.bus.address)
        self.addCleanup(self.shortcuts.close)
