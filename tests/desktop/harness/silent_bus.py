# SPDX-License-Identifier: MIT
"""A session bus that takes connections and never says a word."""

import select
import socket

from .session import Session
from .waiting import PATIENCE


class SilentBus:
    """A socket that listens where a bus would."""

    def __init__(self, session: Session) -> None:
        self._path = session.directory("silent-bus") / "socket"
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.bind(str(self._path))
        self._socket.listen()
        self.environment = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={self._path}"}

    def wait_for_client(self) -> None:
        """Waits until somebody has connected."""
        if not select.select([self._socket], [], [], PATIENCE)[0]:
            raise AssertionError("nobody connected to the bus")

    def close(self) -> None:
        """Ends the bus."""
        self._socket.close()
        self._path.unlink()
