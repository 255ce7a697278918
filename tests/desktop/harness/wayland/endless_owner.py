# SPDX-License-Identifier: MIT
"""A program under Wayland that has copied something without an end."""

import os
import select
from collections.abc import Sequence
from contextlib import suppress
from pathlib import Path

from ..offer import Offer
from ..stoppable_thread import StoppableThread
from .connection import Reader, WaylandError
from .data_control import DataControl

_SEND = 0


class EndlessOwner:
    """Serves in a thread of its own, until it is closed: what it offers, and one type on and on."""

    def __init__(
        self, display: Path, offers: Sequence[Offer], endless: str, piece: bytes, pause: float = 0
    ) -> None:
        """Of the type `endless` a piece is written, and another one after so many seconds."""
        self._data = {offer.target: offer.data for offer in offers}
        self._endless = endless
        self._piece = piece
        self._pause = pause
        self._readers: list[int] = []
        self.written = 0
        self._control = DataControl(display)
        source = self._control.make_source(self._handle_source)
        self._control.offer([*self._data, endless], "CLIPBOARD", source)
        self._thread = StoppableThread(self._run)

    def close(self) -> None:
        """Ends the program."""
        self._thread.close()
        for file in self._readers:
            os.close(file)
        self._control.close()

    def _run(self, stopping: int) -> None:
        connection = self._control.connection
        with suppress(WaylandError):
            while True:
                wanted = [connection, stopping]
                if self._pause:
                    readable, _, _ = select.select(wanted, [], [], self._pause)
                    writable = list(self._readers)
                else:
                    readable, writable, _ = select.select(wanted, self._readers, [])
                if stopping in readable:
                    return
                if connection in readable:
                    connection.handle_events()
                for reader in writable:
                    self._write(reader)

    def _write(self, reader: int) -> None:
        try:
            self.written += os.write(reader, self._piece)
        except BlockingIOError:
            pass
        except BrokenPipeError:
            self._readers.remove(reader)
            os.close(reader)

    def _handle_source(self, event: int, arguments: Reader) -> None:
        if event != _SEND:
            return
        name = arguments.text()
        file = self._control.connection.take_file()
        if name == self._endless:
            os.set_blocking(file, False)
            self._readers.append(file)
            return
        with suppress(BrokenPipeError), os.fdopen(file, "wb") as pipe:
            pipe.write(self._data[name])
