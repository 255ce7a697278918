# SPDX-License-Identifier: MIT
"""GNOME's question whether a program may type."""

from ..accessible import Accessible, State
from ..keys import Key
from ..message_bus import MessageBus
from ..waiting import wait_until
from .session import GnomeSession

_PORTAL = "org.freedesktop.impl.portal.desktop.gnome"
_TITLES = ("Remote desktop", "Remote Desktop")
_FIRST_THAT_REMEMBERS = 45  # of GNOME's releases


def remembers(session: GnomeSession) -> bool:
    """Whether this release can keep the user's answer for later runs."""
    return session.release >= _FIRST_THAT_REMEMBERS


class PortalDialog:
    """The portal's dialog, once it has the keyboard; answered as a user without a mouse does."""

    def __init__(self, session: GnomeSession) -> None:
        self._session = session
        self._hands = session.hands
        wait_until(self._has_focus, "the desktop's question", interval=0.05)
        self._tree = session.accessibility.application(self._pid())

    def allow(self) -> None:
        """Switches the permission on and shares; for later runs too where that is offered."""
        switch = wait_until(lambda: self._find("switch"), "the switch of the dialog")
        self._hands.tap(*((Key.ALT, Key.I) if remembers(self._session) else (Key.RETURN,)))
        wait_until(lambda: switch.has(State.CHECKED), "the permission switched on")
        if remembers(self._session):
            self._hands.tap(Key.ALT, Key.S)
        else:
            self._hands.tap(Key.TAB)
            self._hands.tap(Key.TAB)
            self._hands.tap(Key.TAB)
            self._hands.tap(Key.RETURN)
        self._wait_gone()

    def cancel(self) -> None:
        """Says no."""
        self._hands.tap(Key.ESCAPE)
        self._wait_gone()

    def _wait_gone(self) -> None:
        wait_until(lambda: not is_open(self._session), "the end of the dialog")

    def _has_focus(self) -> bool:
        return any(one.hasFocus and one.title in _TITLES for one in self._session.shell.windows())

    def _pid(self) -> int:
        # The shell counts the later ones' dialogs as its own.
        bus = MessageBus(self._session.bus.address)
        pid = bus.pid_of(_PORTAL)
        bus.close()
        return pid

    # GTK 4 does not tell what shows.
    def _find(self, role: str) -> Accessible | None:
        return next((found for found in self._tree.all() if found.role == role), None)


def is_open(session: GnomeSession) -> bool:
    """Whether the question is there."""
    return any(window.title in _TITLES for window in session.shell.windows())
