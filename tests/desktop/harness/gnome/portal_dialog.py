# SPDX-License-Identifier: MIT
"""GNOME's question whether a program may type."""

from ..accessible import Accessible, State
from ..keys import Key
from ..waiting import wait_until
from .session import GnomeSession

_TITLE = "Remote desktop"


class PortalDialog:
    """The portal's dialog, once it has the keyboard; answered as a user without a mouse does."""

    def __init__(self, session: GnomeSession) -> None:
        self._session = session
        session.shell.wait_focused(_TITLE)
        dialog = session.shell.window(_TITLE)
        assert dialog
        self._tree = session.accessibility.application(dialog.pid)

    def allow(self) -> None:
        """Switches the permission on and shares."""
        switch = wait_until(lambda: self._find("switch"), "the switch of the dialog")
        hands = self._session.hands
        hands.tap(Key.RETURN)
        wait_until(lambda: switch.has(State.CHECKED), "the permission switched on")
        for _ in range(3):
            hands.tap(Key.TAB)
        hands.tap(Key.RETURN)
        self._wait_gone()

    def cancel(self) -> None:
        """Says no."""
        self._session.hands.tap(Key.ESCAPE)
        self._wait_gone()

    def _wait_gone(self) -> None:
        wait_until(lambda: not is_open(self._session), "the end of the dialog")

    # GTK 4 does not tell what shows.
    def _find(self, role: str) -> Accessible | None:
        return next((found for found in self._tree.all() if found.role == role), None)


def is_open(session: GnomeSession) -> bool:
    """Whether the question is there."""
    return session.shell.window(_TITLE) is not None
