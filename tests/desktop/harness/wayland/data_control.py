# SPDX-License-Identifier: MIT
"""The clipboards of a seat, as programs that have no window see them."""

import os
import select
from collections.abc import Callable
from pathlib import Path

from ..waiting import PATIENCE, Deadline
from .connection import Reader, WaylandConnection

_MANAGER = "zwlr_data_control_manager_v1"
_CREATE_SOURCE, _GET_DEVICE = 0, 1
_SET_SELECTION, _SET_PRIMARY = 0, 2
_DATA_OFFER, _SELECTION, _FINISHED, _PRIMARY = 0, 1, 2, 3
_OFFER_TYPE = 0
_RECEIVE = 0
_AT_ONCE = 1 << 16

OnCopy = Callable[[str, list[str]], None]
"""Takes the selection and its types."""


class DataControl:
    """One connection that may set and read both clipboards at any time."""

    def __init__(self, display: Path, on_copy: OnCopy = lambda _selection, _types: None) -> None:
        """`on_copy` is told of everything that anybody copies."""
        self._on_copy = on_copy
        self.connection = WaylandConnection(display)
        seat = self.connection.bind("wl_seat", 1)
        self._manager = self.connection.bind(_MANAGER, 2)
        self._types: dict[int, list[str]] = {}
        self._current: dict[str, int] = {}
        self._device = self.connection.make_object(self._handle_device)
        self.connection.request(self._manager, _GET_DEVICE, self._device, seat)
        self.connection.settle()

    def close(self) -> None:
        """Ends the connection; what it offered is gone."""
        self.connection.close()

    def offer(self, types: list[str], selection: str, source: int) -> None:
        """Sets a clipboard to a source that make_source() gave, and waits until it is set."""
        self.claim(types, selection, source)
        self.connection.settle()

    def claim(self, types: list[str], selection: str, source: int) -> None:
        """The same, without waiting."""
        for name in types:
            self.connection.request(source, _OFFER_TYPE, name)
        request = _SET_PRIMARY if selection == "PRIMARY" else _SET_SELECTION
        self.connection.request(self._device, request, source)

    def make_source(self, handler) -> int:  # type: ignore[no-untyped-def]
        """An object that offer() takes; the handler is asked for its data."""
        source = self.connection.make_object(handler)
        self.connection.request(self._manager, _CREATE_SOURCE, source)
        return source

    def types(self, selection: str) -> list[str]:
        """What a clipboard holds at this moment, in its owner's order."""
        self.connection.settle()
        return self._types.get(self._current.get(selection, 0), [])

    def read(self, selection: str, name: str) -> bytes | None:
        """What a clipboard holds of a type; None where it holds no such type."""
        if name not in self.types(selection):
            return None
        reading, writing = os.pipe()
        self.connection.request(self._current[selection], _RECEIVE, name, files=[writing])
        os.close(writing)
        try:
            return _all_of(reading, f"the {name} of {selection}")
        finally:
            os.close(reading)

    def _handle_device(self, event: int, arguments: Reader) -> None:
        offer = 0 if event == _FINISHED else arguments.number()
        if event == _DATA_OFFER:
            self._types[offer] = []
            self.connection.follow(
                offer, lambda _event, argument: self._types[offer].append(argument.text())
            )
        elif event in (_SELECTION, _PRIMARY):
            selection = "CLIPBOARD" if event == _SELECTION else "PRIMARY"
            self._current[selection] = offer
            self._on_copy(selection, self._types.get(offer, []))


def _all_of(file: int, what: str) -> bytes:
    deadline = Deadline(what, PATIENCE)
    data = b""
    while True:
        select.select([file], [], [], deadline.remaining())
        piece = os.read(file, _AT_ONCE)
        if not piece:
            return data
        data += piece
