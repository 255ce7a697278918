# SPDX-License-Identifier: MIT
"""A program that is used for months: it takes no more memory, no more handles, and no more time.

QUORVANE_LONG_LIFE=whole makes it a long life; without, it is a short one that the suite has time for.
"""

import os
import sys
from collections.abc import Callable

from harness.case import DesktopCase
from harness.handles import Handles
from harness.key_witness import KeyWitness, Stroke
from harness.keys import SHORTCUT, Key
from harness.memory import Memory
from harness.message_bus import MessageBus
from harness.offer import plain_text
from harness.quorvane import BUS_INTERFACE, BUS_NAME, BUS_PATH
from harness.waiting import wait_until
from Xlib.display import Display

_IS_WHOLE = os.environ.get("QUORVANE_LONG_LIFE") == "whole"

_GROWTH = 3 << 20
"""How many bytes of its own the program may have more than after the first hundred times."""

_DRIFT = 1.5
"""How much more of the processor's time the last hundred may take than the first."""


class LongLife(DesktopCase):
    """Each thing that a user does all the time, over and over."""

    def setUp(self) -> None:
        super().setUp()
        self.quorvane = self.hidden_quorvane()
        self.pid = self.quorvane.process.pid
        self.display = Display(self.session.display)
        self.addCleanup(self.display.close)

    def test_toggles(self) -> None:
        self.repeat(self.toggle, first=50, whole=10_000, short=100)

    def test_insertions(self) -> None:
        self.clipboard.own(plain_text("the user's own"))
        witness = KeyWitness(self.session)
        self.addCleanup(witness.close)
        bus = MessageBus(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(bus.close)

        def insert() -> None:
            witness.forget()
            call = (BUS_NAME, BUS_PATH, BUS_INTERFACE, "ActivateAction", "(sava{sv})")
            bus.call(*call, "insert", [], {})
            witness.wait_for(Stroke(Key.V, False))

        self.repeat(insert, first=10, whole=2000, short=10)
        self.clipboard.wait_for(plain_text("the user's own"))

    def test_changes_of_the_model(self) -> None:
        self.summon(self.quorvane)
        keys = 200

        def change() -> None:
            before = self.quorvane.preview()
            for _ in range(keys):
                self.keyboard.tap(Key.UP)
            wait_until(lambda: self.quorvane.preview() != before, "another date")

        self.repeat(change, first=5, whole=100_000 // keys, short=10)

    def test_openings_of_the_preferences(self) -> None:
        windows = self.session.windows

        def open_and_close() -> None:
            self.quorvane.action("preferences")
            title = "Quorvane Preferences"
            window = windows.wait(lambda: windows.of_process(self.pid, title), "the preferences")
            windows.wait(lambda: windows.active() == window, "the preferences in front")
            self.keyboard.tap(Key.ESCAPE)
            windows.wait(lambda: not windows.of_process(self.pid, title), "their end")

        self.repeat(open_and_close, first=10, whole=200, short=10)

    def test_openings_of_the_picker(self) -> None:
        self.summon(self.quorvane)
        tree = self.quorvane.tree()

        def open_and_close() -> None:
            tree.find_role("push button", "Add time zone").press()
            tree.find_role("text", "Search")
            self.keyboard.tap(Key.ESCAPE)
            wait_until(lambda: not tree.shows("text", "Search"), "the end of the picker")

        self.repeat(open_and_close, first=5, whole=200, short=5)

    def toggle(self) -> None:
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_active()
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_hidden()

    def repeat(self, act: Callable[[], None], first: int, whole: int, short: int) -> None:
        """Does it so many times after the first ones, with which everything has been made."""
        memory = Memory(self.pid)
        hundred = 100 if _IS_WHOLE else first
        early = self.busy(act, hundred)
        private, handles = memory.private(), Handles.of(self.display, self.pid)
        times = whole if _IS_WHOLE else short
        for _ in range(times - hundred):
            act()
        late = self.busy(act, hundred)
        growth, after = memory.private() - private, Handles.of(self.display, self.pid)
        self.report(times, growth, handles, after, early, late)
        self.assertLess(growth, _GROWTH)
        for now, then in zip(after, handles, strict=True):
            self.assertLessEqual(now, then, f"{handles} to {after}")
        if _IS_WHOLE:
            self.assertLess(late, early * _DRIFT)

    def busy(self, act: Callable[[], None], times: int) -> float:
        """The mean of the processor's time that the program takes for it, in seconds."""
        begin = Memory(self.pid).processor_time()
        for _ in range(times):
            act()
        return (Memory(self.pid).processor_time() - begin) / times

    def report(
        self, times: int, growth: int, before: Handles, after: Handles, early: float, late: float
    ) -> None:
        """One line for docs/reliability.md."""
        if _IS_WHOLE:
            print(
                f"{self.id()}: {times} times, {growth / 1024:+.0f} KiB, {before} to {after}, "
                f"{early * 1000:.2f} ms to {late * 1000:.2f} ms of the processor",
                file=sys.stderr,
            )
