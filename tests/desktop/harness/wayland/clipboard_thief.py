# SPDX-License-Identifier: MIT
"""A program under Wayland that takes the clipboard away from whoever has copied something."""

import os
import select
from collections.abc import Callable, Sequence
from contextlib import suppress
from pathlib import Path

from ..offer import Offer
from ..stoppable_thread import StoppableThread
from .connection import Reader, WaylandError
from .data_control import DataControl

_SEND = 0
_MARK = "application/x-stolen"


class ClipboardThief:
    """Serves and steals in a thread of its own, until it is closed.

    It steals so many times, each time right after another program has copied something; where it is
    `greedy`, also from itself. Before each theft it calls `pace`.
    """

    def __init__(
        self,
        display: Path,
        loot: Sequence[Offer],
        times: int,
        greedy: bool = False,
        pace: Callable[[], None] = lambda: None,
    ) -> None:
        self._loot = {offer.target: offer.data for offer in loot} | {_MARK: b""}
        self._times = 0
        self._greedy = greedy
        self._pace = pace
        self.thefts = 0
        self._control = DataControl(display, self._note_copy)
        # What was there before is nobody's prey.
        self._times = times
        self._thread = StoppableThread(self._run)

    def close(self) -> None:
        """Ends the program, and what it owns."""
        self._thread.close()
        self._control.close()

    def _run(self, stopping: int) -> None:
        connection = self._control.connection
        with suppress(WaylandError):
            while True:
                ready, _, _ = select.select([connection, stopping], [], [])
                if stopping in ready:
                    return
                connection.handle_events()

    def _note_copy(self, selection: str, types: list[str]) -> None:
        is_prey = types and (self._greedy or _MARK not in types)
        if selection != "CLIPBOARD" or not is_prey or self.thefts >= self._times:
            return
        self._pace()
        self.thefts += 1
        source = self._control.make_source(self._handle_source)
        self._control.claim(list(self._loot), selection, source)

    def _handle_source(self, event: int, arguments: Reader) -> None:
        if event != _SEND:
            return
        name = arguments.text()
        file = self._control.connection.take_file()
        with suppress(BrokenPipeError), os.fdopen(file, "wb") as pipe:
            pipe.write(self._loot[name])
