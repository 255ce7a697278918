# SPDX-License-Identifier: MIT
"""Whom a program connects to."""

from .paths import CONTACTS
from .private_session import PrivateSession


class Contacts:
    """What is preloaded writes a line for each."""

    def __init__(self, session: PrivateSession) -> None:
        self._file = session.directory("contacts") / "list"
        self.environment = {"LD_PRELOAD": str(CONTACTS), "QUORVANE_CONTACTS": str(self._file)}

    def all(self) -> set[str]:
        """The sockets so far, by their paths; and what was none on this machine."""
        return set(self._file.read_text().splitlines())
