# SPDX-License-Identifier: MIT
"""Questions and orders to sway, by its own socket."""

import json
import socket
import struct
from pathlib import Path
from typing import Any

_MAGIC = b"i3-ipc"
_RUN_COMMAND, _SUBSCRIBE, _GET_OUTPUTS, _GET_TREE = 0, 2, 3, 4
_PATIENCE = 10.0  # seconds


class SwayIpc:
    """One connection, for questions or for events."""

    def __init__(self, path: Path) -> None:
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.settimeout(_PATIENCE)
        self._socket.connect(str(path))

    def close(self) -> None:
        """Ends the connection."""
        self._socket.close()

    def fileno(self) -> int:
        """For select()."""
        return self._socket.fileno()

    def command(self, text: str) -> None:
        """Has sway do something; it has to succeed."""
        for outcome in self._ask(_RUN_COMMAND, text):
            if not outcome["success"]:
                raise RuntimeError(f"sway does not do {text!r}: {outcome}")

    def tree(self) -> dict[str, Any]:
        """All windows and what holds them."""
        answer: dict[str, Any] = self._ask(_GET_TREE)
        return answer

    def outputs(self) -> list[dict[str, Any]]:
        """The screens."""
        answer: list[dict[str, Any]] = self._ask(_GET_OUTPUTS)
        return answer

    def subscribe(self, *events: str) -> None:
        """From now on read() gives these events."""
        self._ask(_SUBSCRIBE, json.dumps(events))

    def read(self) -> Any:
        """The next message."""
        header = self._take(len(_MAGIC) + 8)
        length, _kind = struct.unpack("=II", header[len(_MAGIC) :])
        return json.loads(self._take(length))

    def _ask(self, kind: int, payload: str = "") -> Any:
        data = payload.encode()
        self._socket.sendall(_MAGIC + struct.pack("=II", len(data), kind) + data)
        return self.read()

    def _take(self, length: int) -> bytes:
        data = b""
        while len(data) < length:
            piece = self._socket.recv(length - len(data))
            if not piece:
                raise RuntimeError("sway is gone")
            data += piece
        return data
