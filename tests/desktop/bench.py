# SPDX-License-Identifier: MIT
"""How long a user waits: for the start, for the panel, for the text."""

import statistics
import threading
import time
from collections.abc import Iterator
from contextlib import contextmanager

from harness.clipboard import Clipboard
from harness.keys import INSERT, SHORTCUT, Keyboard
from harness.message_bus import MessageBus
from harness.quorvane import BUS_NAME, BUS_PATH, Quorvane
from harness.session import Session
from harness.targets import EDITORS, Editor
from harness.waiting import wait_until

_ROUNDS = 30


class Stopwatch:
    """Times one kind of wait over and over."""

    def __init__(self, what: str) -> None:
        self._what = what
        self._times: list[float] = []

    @contextmanager
    def running(self) -> Iterator[None]:
        """Notes how long the block takes."""
        began = time.perf_counter()
        yield
        self._times.append(1000 * (time.perf_counter() - began))

    def report(self) -> None:
        """Prints one line of the table."""
        low, middle, high = min(self._times), statistics.median(self._times), max(self._times)
        print(f"{self._what:32}{low:8.1f}{middle:8.1f}{high:8.1f}")


class Heartbeat(threading.Thread):
    """Asks the program's main thread for a sign of life, over and over, while it is used.

    The program answers on its bus object in the main thread, so the longest answer is the longest
    time for which that thread kept anybody waiting, and the bus' own part, some 0.2 ms.
    """

    def __init__(self, session: Session) -> None:
        super().__init__(daemon=True)
        self._bus = MessageBus(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self._ended = threading.Event()
        self.beats = Stopwatch("main thread's answer")

    def run(self) -> None:
        while not self._ended.wait(0.001):
            with self.beats.running():
                self._bus.call(
                    BUS_NAME, BUS_PATH, "org.freedesktop.DBus.Introspectable", "Introspect"
                )

    def end(self) -> None:
        """Asks no more."""
        self._ended.set()
        self.join()
        self._bus.close()


def measure_starts(session: Session) -> Stopwatch:
    """From a process's start until its panel has the keyboard."""
    start = Stopwatch("start to active panel")
    for _ in range(_ROUNDS):
        with start.running():
            quorvane = Quorvane(session)
            quorvane.wait_active()
        quorvane.quit()
    return start


def measure_insertion(session: Session) -> tuple[Stopwatch, Stopwatch, Stopwatch]:
    """From the shortcut to the panel, from there to the text, and what keeps the main thread."""
    panel = Stopwatch("shortcut to active panel")
    insertion = Stopwatch("insert to text in mousepad")
    keyboard = Keyboard(session.display)
    clipboard = Clipboard(session)
    editor = Editor(session, EDITORS["mousepad"])
    quorvane = Quorvane(session)
    quorvane.hide()
    heartbeat = Heartbeat(session)
    heartbeat.start()
    for _ in range(_ROUNDS):
        editor.wait_active()
        expected = editor.text()
        with panel.running():
            keyboard.tap(*SHORTCUT)
            quorvane.wait_active()
        expected += quorvane.preview()
        with insertion.running():
            keyboard.tap(*INSERT)
            wait_until(lambda: editor.text() == expected, "the text", interval=0.001)
        clipboard.wait_empty()
    heartbeat.end()
    quorvane.quit()
    return panel, insertion, heartbeat.beats


def main() -> None:
    """Measures on a desktop of its own and prints a table."""
    with Session("openbox") as session:
        stopwatches = [measure_starts(session), *measure_insertion(session)]
    print(f"{f'milliseconds, {_ROUNDS} rounds':32}{'min':>8}{'median':>8}{'max':>8}")
    for stopwatch in stopwatches:
        stopwatch.report()


if __name__ == "__main__":
    main()
