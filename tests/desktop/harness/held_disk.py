# SPDX-License-Identifier: MIT
"""A disk that takes what is written, and does not answer until the test lets it go."""

import os

from .paths import HELD_DISK
from .session import Session
from .waiting import wait_until


class HeldDisk:
    """Holds each program that runs with its environment and wants a file to be on the disk."""

    def __init__(self, session: Session) -> None:
        folder = session.directory("held-disk")
        self._arrival = folder / "arrived"
        self._gate = folder / "gate"
        os.mkfifo(self._gate)
        self._way: int | None = None
        self.environment = {"LD_PRELOAD": str(HELD_DISK), "QUORVANE_HELD_DISK": str(folder)}

    def wait_held(self) -> None:
        """Waits until a program waits for the disk."""
        wait_until(self._arrival.exists, "a write to the disk")

    def let_go(self) -> None:
        """From now on the disk answers; harmless where it does already."""
        if self._way is None:
            self._way = os.open(self._gate, os.O_RDWR)

    def close(self) -> None:
        """Lets go and leaves nothing open."""
        self.let_go()
        if self._way is not None:
            os.close(self._way)
        self._gate.unlink()
