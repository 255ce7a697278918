# SPDX-License-Identifier: MIT
"""What the test cases under KWin have in common."""

from ..case import DesktopCase
from ..wayland.clipboard import WaylandClipboard
from .global_shortcuts import GlobalShortcuts
from .keyboard import Hands
from .session import KwinSession


class KwinCase(DesktopCase):
    """A fresh session of KWin for each test; to be run by harness.sandbox."""

    session: KwinSession
    keyboard: Hands  # type: ignore[assignment]
    clipboard: WaylandClipboard  # type: ignore[assignment]

    def make_session(self) -> KwinSession:
        return KwinSession()

    def setUp(self) -> None:
        self.keyboard = Hands(self.session.socket)
        self.addCleanup(self.keyboard.close)
        self.clipboard = WaylandClipboard(self.session.socket)
        self.addCleanup(self.clipboard.close)
        self.shortcuts = GlobalShortcuts(self.session.bus.address)
        self.addCleanup(self.shortcuts.close)
