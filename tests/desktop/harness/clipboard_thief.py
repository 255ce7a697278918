# SPDX-License-Identifier: MIT
"""A program that takes the clipboard away from whoever owns it."""

import select

from Xlib import X
from Xlib.ext import xfixes
from Xlib.protocol.rq import Event

from .offer import Offer
from .selection_owner import SelectionOwner
from .stoppable_thread import StoppableThread


class ClipboardThief:
    """Serves and steals in a thread of its own, until it is closed.

    It steals so many times, each time right after another program has copied something; without
    end where it is `greedy`, also from itself.
    """

    def __init__(self, display: str, loot: list[Offer], times: int, greedy: bool = False) -> None:
        self._loot = loot
        self._times = times
        self._greedy = greedy
        self.thefts = 0
        self._owner = SelectionOwner(display)
        self._follow()
        self._thread = StoppableThread(self._run)

    def close(self) -> None:
        """Ends the program, and what it owns."""
        self._thread.close()
        self._owner.close()

    def _follow(self) -> None:
        display = self._owner.display
        display.xfixes_query_version()
        display.xfixes_select_selection_input(
            self._owner.window,
            self._owner.atom("CLIPBOARD"),
            xfixes.XFixesSetSelectionOwnerNotifyMask,
        )
        display.sync()
        self._notify = display.extension_event.SetSelectionOwnerNotify

    def _run(self, stopping: int) -> None:
        display = self._owner.display
        while True:
            while display.pending_events():
                self._handle(display.next_event())
            ready, _, _ = select.select([display, stopping], [], [])
            if stopping in ready:
                return

    def _handle(self, event: Event) -> None:
        if (event.type, getattr(event, "sub_code", None)) != self._notify:
            self._owner.handle(event)
        elif self._greedy or event.owner not in (X.NONE, self._owner.window):
            self._steal(event.timestamp)

    def _steal(self, time: int) -> None:
        if self.thefts < self._times:
            self.thefts += 1
            self._owner.claim("CLIPBOARD", self._loot, time)
