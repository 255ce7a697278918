# SPDX-License-Identifier: MIT
"""A connection to a compositor, in the bytes of Wayland's wire format."""

import array
import math
import os
import select
import socket
import struct
from collections.abc import Callable, Sequence
from dataclasses import dataclass
from pathlib import Path

from ..waiting import Deadline

_DISPLAY = 1  # the object that every connection begins with
_SYNC, _GET_REGISTRY = 0, 1
_ERROR, _DELETE_ID = 0, 1
_BIND = 0
_GLOBAL, _GLOBAL_REMOVE = 0, 1

_MOST_FILES = 28  # libwayland sends no more at once
_AT_ONCE = 1 << 16

Argument = int | str | None


class Reader:
    """The arguments of one event, taken in their order."""

    def __init__(self, data: bytes) -> None:
        self._data = data

    def number(self) -> int:
        """An unsigned number or an object."""
        (value,) = struct.unpack_from("=I", self._data)
        self._data = self._data[4:]
        return int(value)

    def signed_number(self) -> int:
        """A number that may be negative."""
        value = self.number()
        return value - (1 << 32) if value >> 31 else value

    def text(self) -> str:
        """A text, without the zero at its end."""
        length = self.number()
        text = self._data[: length - 1].decode()
        self._data = self._data[length + -length % 4 :]
        return text


Handler = Callable[[int, Reader], None]
"""Takes an event of one object by its number in the protocol."""


@dataclass(frozen=True)
class Global:
    """What the compositor offers to every program."""

    name: int
    version: int


class WaylandError(RuntimeError):
    """The compositor refused a request, or is gone."""


class WaylandConnection:
    """Requests go out at once; events are handled while somebody waits for them."""

    def __init__(self, path: Path) -> None:
        """Connects to the socket, and learns what the compositor offers."""
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.connect(str(path))
        self._received = b""
        self._files: list[int] = []
        self._last_object = _DISPLAY
        self._handlers: dict[int, Handler] = {_DISPLAY: self._handle_display}
        self.globals: dict[str, Global] = {}
        self._registry = self.make_object(self._handle_registry)
        self.request(_DISPLAY, _GET_REGISTRY, self._registry)
        self.settle()

    def close(self) -> None:
        """Ends the connection, and with it all that was made through it."""
        self._socket.close()
        for file in self._files:
            os.close(file)
        self._files = []

    def fileno(self) -> int:
        """For select(): readable when there are events."""
        return self._socket.fileno()

    def make_object(self, handler: Handler | None = None) -> int:
        """A new object for a request that makes one."""
        self._last_object += 1
        self.follow(self._last_object, handler)
        return self._last_object

    def follow(self, item: int, handler: Handler | None) -> None:
        """Has an object's events handled, one that the compositor made included."""
        self._handlers[item] = handler or (lambda _event, _arguments: None)

    def bind(self, interface: str, version: int, handler: Handler | None = None) -> int:
        """An object for what the compositor offers, at a version that it knows."""
        offered = self.globals.get(interface)
        if offered is None:
            raise WaylandError(f"the compositor does not offer {interface}")
        item = self.make_object(handler)
        number = min(version, offered.version)
        self.request(self._registry, _BIND, offered.name, interface, number, item)
        return item

    def request(
        self, item: int, number: int, *arguments: Argument, files: Sequence[int] = ()
    ) -> None:
        """Sends a request; files travel beside the arguments and are not among them."""
        body = b"".join(_encoded(argument) for argument in arguments)
        message = struct.pack("=II", item, (8 + len(body)) << 16 | number) + body
        control = [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", files))]
        try:
            self._socket.sendmsg([message], control if files else [])
        except OSError as error:
            raise WaylandError("the compositor is gone") from error

    def settle(self) -> None:
        """Waits until the compositor has done all that was asked, and handles what it told."""
        answers: list[int] = []
        callback = self.make_object(lambda event, _arguments: answers.append(event))
        self.request(_DISPLAY, _SYNC, callback)
        self.wait(lambda: bool(answers), "the compositor's answer")

    def wait(
        self, condition: Callable[[], bool], what: str, longest_silence: float = math.inf
    ) -> None:
        """Handles events until the condition holds; asks for that after each, and after a silence
        of so many seconds.
        """
        deadline = Deadline(what)
        while not condition():
            rest = min(deadline.remaining(), longest_silence)
            if select.select([self._socket], [], [], rest)[0]:
                self.handle_events()

    def handle_events(self) -> None:
        """Reads what has come, and handles each event that is whole."""
        try:
            data, files, _, _ = socket.recv_fds(self._socket, _AT_ONCE, _MOST_FILES)
        except OSError:
            data, files = b"", []
        if not data:
            raise WaylandError("the compositor is gone")
        self._files += files
        self._received += data
        while event := self._next_event():
            item, number, arguments = event
            self._handlers[item](number, Reader(arguments))

    def take_file(self) -> int:
        """The file of the event that is being handled."""
        return self._files.pop(0)

    def _next_event(self) -> tuple[int, int, bytes] | None:
        if len(self._received) < 8:
            return None
        item, word = struct.unpack_from("=II", self._received)
        size = word >> 16
        if len(self._received) < size:
            return None
        arguments, self._received = self._received[8:size], self._received[size:]
        return item, word & 0xFFFF, arguments

    def _handle_display(self, event: int, arguments: Reader) -> None:
        if event == _ERROR:
            item, number, text = arguments.number(), arguments.number(), arguments.text()
            raise WaylandError(f"object {item}, error {number}: {text}")
        # Numbers are never used again, so that one that is deleted needs nothing.

    def _handle_registry(self, event: int, arguments: Reader) -> None:
        name = arguments.number()
        if event == _GLOBAL:
            self.globals.setdefault(arguments.text(), Global(name, arguments.number()))
        elif event == _GLOBAL_REMOVE:
            gone = [key for key, value in self.globals.items() if value.name == name]
            for interface in gone:
                del self.globals[interface]


def _encoded(argument: Argument) -> bytes:
    if argument is None:
        return struct.pack("=I", 0)
    if isinstance(argument, int):
        return struct.pack("=I", argument & 0xFFFFFFFF)
    text = argument.encode() + b"\0"
    return struct.pack("=I", len(text)) + text + b"\0" * (-len(text) % 4)
