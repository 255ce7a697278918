# SPDX-License-Identifier: MIT
"""From the fork of a process until its window shows, and the memory that it then takes."""

from collections.abc import Sequence

from harness.private_session import PrivateSession

from .figures import Figures
from .observer import Observer
from .process import empty_caches, end, memory, wait_quiet
from .programs import Program, start
from .sway_observer import SwayObserver

_MILLI = 1000
_KILO = 1024


class Starts:
    """Starts programs in turn, so that a machine that slows down does so for all."""

    def __init__(
        self,
        session: PrivateSession,
        figures: Figures,
        observer: Observer | SwayObserver,
        where: str = "",
    ) -> None:
        """The observer is closed with this; `where` is added to the names of the figures."""
        self._session = session
        self._figures = figures
        self._observer = observer
        self._where = where

    def close(self) -> None:
        """Ends the observer."""
        self._observer.close()

    def warm(
        self, programs: Sequence[Program], rounds: int, fonts: str = "", **environment: str
    ) -> None:
        """What a start needs is in memory already, from a start before that does not count."""
        measure = f"first paint, warm{fonts}{self._where}"
        for turn in range(rounds + 1):
            for program in programs:
                self._start(program, measure if turn else None, environment, not fonts)

    def cold(self, programs: Sequence[Program], rounds: int) -> None:
        """All that a start needs comes from the disk."""
        for _ in range(rounds):
            for program in programs:
                empty_caches()
                self._start(program, "first paint, cold", {}, False)

    def _start(
        self, program: Program, measure: str | None, environment: dict[str, str], weighs: bool
    ) -> None:
        process, began = start(self._session, program, environment)
        seen = self._observer.wait_shown()
        shown = self._observer.active_process()
        wait_quiet(shown)
        if measure:
            self._figures.add(measure, program.name, "ms", _MILLI * (seen.painted - began))
            if weighs:
                self._weigh(program, shown)
        end(shown)
        process.wait(10)
        self._observer.wait_hidden()

    def _weigh(self, program: Program, pid: int) -> None:
        now = memory(pid)
        for name, size in (("resident", now.resident), ("private dirty", now.private_dirty)):
            self._figures.add(f"{name}, shown{self._where}", program.name, "MB", size / _KILO)
