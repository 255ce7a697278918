# SPDX-License-Identifier: MIT
"""A speech server without a voice: it notes what a screen reader would have said."""

import html
import re
import socket
import threading
from pathlib import Path

from .waiting import Deadline

_MARKUP = re.compile(r"<[^>]*>")


class SpeechServer:
    """Answers Speech Dispatcher's protocol (SSIP) at a socket, and keeps the spoken texts."""

    def __init__(self, path: Path) -> None:
        self._spoken: list[str] = []
        self._changed = threading.Condition()
        self._listener = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._listener.bind(str(path))
        self._listener.listen()
        threading.Thread(target=self._accept, daemon=True).start()

    def close(self) -> None:
        """Takes no more clients; those that are there are served until they leave."""
        self._listener.close()

    def forget(self) -> None:
        """Leaves out of the next answer what was spoken so far."""
        with self._changed:
            self._spoken.clear()

    def wait_for(self, fragment: str) -> list[str]:
        """Waits for a text that contains the fragment.

        Returns that text and those that came before it since the last answer, in their order.
        """
        deadline = Deadline(f'"{fragment}" to be spoken')
        with self._changed:
            while (end := self._place_of(fragment)) is None:
                try:
                    self._changed.wait(deadline.remaining())
                except AssertionError as missed:
                    raise AssertionError(f"{missed}; spoken was {self._spoken}") from None
            answer = self._spoken[: end + 1]
            del self._spoken[: end + 1]
        return answer

    def _place_of(self, fragment: str) -> int | None:
        places = (place for place, text in enumerate(self._spoken) if fragment in text)
        return next(places, None)

    def _accept(self) -> None:
        while True:
            try:
                client, _ = self._listener.accept()
            except OSError:
                return
            threading.Thread(target=self._serve, args=[client], daemon=True).start()

    def _serve(self, client: socket.socket) -> None:
        with client, client.makefile("rwb") as stream:
            for line in stream:
                command = line.decode().strip()
                if command.upper() == "SPEAK":
                    _answer(stream, "230 OK RECEIVING DATA")
                    self._note(_plain(_data(stream)))
                elif command.upper().startswith(("CHAR ", "KEY ")):
                    self._note(command.split(" ", 1)[1])
                _answer(stream, *_answer_to(command.upper()))
                if command.upper() == "QUIT":
                    return

    def _note(self, text: str) -> None:
        with self._changed:
            self._spoken.append(text)
            self._changed.notify_all()


def _data(stream) -> str:
    lines = []
    for line in iter(stream.readline, b""):
        text = line.decode().rstrip("\r\n")
        if text == ".":
            break
        lines.append(text.removeprefix(".") if text.startswith("..") else text)
    return "\n".join(lines)


def _plain(ssml: str) -> str:
    return html.unescape(_MARKUP.sub("", ssml)).strip()


def _answer(stream, *lines: str) -> None:
    stream.write("".join(f"{line}\r\n" for line in lines).encode())
    stream.flush()


def _answer_to(command: str) -> tuple[str, ...]:
    if command.startswith(("SPEAK", "CHAR ", "KEY ")):
        return ("225-1", "225 OK MESSAGE QUEUED")
    if command.startswith("HISTORY GET CLIENT_ID"):
        return ("245-1", "245 OK CLIENT ID SENT")
    if command.startswith("LIST OUTPUT_MODULES"):
        return ("250-silent", "250 OK MODULE LIST SENT")
    if command.startswith("LIST"):
        return ("249-silent\ten\tnone", "249 OK VOICE LIST SENT")
    if command.startswith("GET"):
        return ("251-0", "251 OK GET RETURNED")
    if command == "QUIT":
        return ("231 HAPPY HACKING",)
    return ("200 OK",)
