# SPDX-License-Identifier: MIT
"""A program that has copied something, and serves it to whoever pastes."""

import os
import select
import threading
from collections.abc import Sequence
from contextlib import suppress
from pathlib import Path

from ..offer import Offer
from .connection import Reader, WaylandError
from .data_control import DataControl

_SEND, _CANCELLED = 0, 1


class ClipboardOwner:
    """Serves in a thread of its own, from the start to close() or to the next copy of anybody."""

    def __init__(
        self, display: Path, offers: Sequence[Offer], selection: str, silent: Sequence[str]
    ) -> None:
        """The types named as silent are offered, and never written."""
        self._data = {offer.target: offer.data for offer in offers}
        self._silent = set(silent)
        self._unanswered: list[int] = []
        self.asked: list[str] = []
        self._is_over = False
        self._control = DataControl(display)
        source = self._control.make_source(self._handle_source)
        self._control.offer([offer.target for offer in offers], selection, source)
        self._stopping, self._stop = os.pipe()
        self._thread = threading.Thread(target=self._serve)
        self._thread.start()

    def close(self) -> None:
        """Ends the program; a compositor then has nothing to paste, unless others kept it."""
        os.write(self._stop, b"x")
        self._thread.join()
        for file in (self._stop, self._stopping, *self._unanswered):
            os.close(file)
        self._control.close()

    def _serve(self) -> None:
        connection = self._control.connection
        with suppress(WaylandError):
            while not self._is_over:
                ready, _, _ = select.select([connection, self._stopping], [], [])
                if self._stopping in ready:
                    return
                connection.handle_events()

    def _handle_source(self, event: int, arguments: Reader) -> None:
        if event == _CANCELLED:
            self._is_over = True
            return
        name = arguments.text()
        file = self._control.connection.take_file()
        self.asked.append(name)
        if name in self._silent:
            self._unanswered.append(file)
            return
        with suppress(BrokenPipeError), os.fdopen(file, "wb") as pipe:
            pipe.write(self._data[name])
