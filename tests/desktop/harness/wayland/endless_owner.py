# SPDX-License-Identifier: MIT
"""A program under Wayland that has copied something without an end."""

import os
import select
import threading
from collections.abc import Sequence
from contextlib import suppress
from pathlib import Path

from ..offer import Offer
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
        self._stopping, self._stop = os.pipe()
        self._thread = threading.Thread(target=self._run)
        self._thread.start()

    def close(self) -> None:
        """Ends the program."""
        os.write(self._stop, b"x")
        self._thread.join()
        for file in (self._stop, self._stopping, *self._readers):
            os.close(file)
        self._control.close()

    def _run(self) -> None:
        connection = self._control.connection
        with suppress(WaylandError):
            while True:
                wanted = [connection, self._stopping]
                if self._pause:
                    readable, _, _ = select.select(wanted, [], [], self._pause)
                    writable = list(self._readers)
                else:
                    readable, writable, _ = select.select(wanted, self._readers, [])
                if self._stopping in readable:
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
