# SPDX-License-Identifier: MIT
"""A wall clock that a test moves on, instead of waiting for it."""

from datetime import timedelta

from .paths import MOVED_CLOCK
from .session import Session


class MovedClock:
    """The clock of each program that runs with its environment, at first the system's."""

    def __init__(self, session: Session) -> None:
        file = session.directory("moved-clock") / "seconds"
        file.write_bytes(bytes(8))
        self._file = file.open("r+b", buffering=0)
        self.ahead = timedelta()
        self.environment = {"LD_PRELOAD": str(MOVED_CLOCK), "QUORVANE_MOVED_CLOCK": str(file)}

    def move(self, span: timedelta) -> None:
        """Lets so much time pass at once."""
        self.ahead += span
        seconds = int(self.ahead.total_seconds())
        self._file.seek(0)
        self._file.write(seconds.to_bytes(8, "little", signed=True))

    def close(self) -> None:
        """Leaves the clock where it is."""
        self._file.close()
