# SPDX-License-Identifier: MIT
"""The clipboard of a display, owned for somebody who gives each type when it is asked for."""

import os
import select
import threading
from collections.abc import Callable

from Xlib import X
from Xlib.protocol.rq import Event

from .offer import Offer
from .selection_owner import SelectionOwner
from .selection_reader import SIDE_EFFECTS, SelectionReader


def contents_of(display: str) -> list[str]:
    """The types that stand on the clipboard of the display, in their owner's order."""
    reader = SelectionReader(display)
    try:
        return [kind for kind in reader.targets("CLIPBOARD") if kind not in SIDE_EFFECTS]
    finally:
        reader.close()


class SharedSelection:
    """Owns from the start until another program copies, which is told, or close()."""

    def __init__(
        self,
        display: str,
        types: list[str],
        fetch: Callable[[str], bytes],
        lost: Callable[[list[str]], None],
    ) -> None:
        self._is_closed = threading.Event()
        self._owner = _LazyOwner(display, fetch, self._is_closed)
        self._owner.own("CLIPBOARD", [Offer(kind, b"") for kind in types])
        self._lost = lost
        self._display = display
        self._end, self._ending = os.pipe()
        self._thread = threading.Thread(target=self._serve)
        self._thread.start()

    def close(self) -> None:
        """Gives the clipboard up, without a word, once what is being fetched has come."""
        self._is_closed.set()
        os.close(self._ending)

    def wait_closed(self) -> None:
        """Waits for that."""
        self._thread.join()

    def _serve(self) -> None:
        display = self._owner.display
        # What came while questions were answered stands in the client's queue, where none waits.
        while (is_ours := self._handle_events()) and not self._is_closed.is_set():
            select.select([display, self._end], [], [])
        if is_ours:
            self._give_up()
        elif not self._is_closed.is_set():
            self._lost(contents_of(self._display))
        self._owner.close()
        os.close(self._end)

    def _handle_events(self) -> bool:
        """Whether the clipboard is still ours."""
        display = self._owner.display
        while display.pending_events():
            if not self._owner.handle(display.next_event()):
                return False
        return True

    def _give_up(self) -> None:
        """Whoever has asked until then gets an answer: a program that went away gives none."""
        self._owner.disown("CLIPBOARD")
        while self._owner.handle(self._owner.display.next_event()):
            pass


class _LazyOwner(SelectionOwner):
    def __init__(
        self, display: str, fetch: Callable[[str], bytes], is_closed: threading.Event
    ) -> None:
        super().__init__(display)
        self._fetch = fetch
        self._is_closed = is_closed

    def _answer(self, request: Event) -> None:
        if self._is_closed.is_set():
            self.confirm(request, X.NONE)
            return
        target = self.name(request.target)
        if target in self._offers:
            self._offers[target] = Offer(target, self._fetch(target))
        super()._answer(request)
