# SPDX-License-Identifier: MIT
"""A second program at sway's socket, which is told when windows appear and get the focus."""

import select
import time
from pathlib import Path
from typing import Any

from harness.sway.ipc import SwayIpc
from harness.sway.session import SwaySession
from harness.waiting import Deadline

from .observer import Sight


class SwayObserver:
    """Watches one session, in which one program shows one window at a time."""

    def __init__(self, session: SwaySession) -> None:
        path = Path(session.environment["SWAYSOCK"])
        # A tile would be of another size than the window that it holds.
        session.windows.sway.command('for_window [app_id=".*"] floating enable')
        self._events = SwayIpc(path)
        self._events.subscribe("window")
        self._window = self._process = 0

    def close(self) -> None:
        """Ends the connection."""
        self._events.close()

    def wait_shown(self) -> Sight:
        """Waits until a window is there, with its content and the focus."""
        deadline = Deadline("a window that is painted and active")
        now, window = self._next("new", deadline)
        self._window, self._process = window["id"], window["pid"]
        active, _ = self._next("focus", deadline)
        # A window of Wayland is there with its first picture, and not before.
        return Sight(now, now, active)

    def wait_hidden(self) -> None:
        """Waits until that window is gone."""
        self._next("close", Deadline("the window to be gone"))
        self._window = 0

    def active_process(self) -> int:
        """The process of the window that showed last."""
        return self._process

    def _next(self, change: str, deadline: Deadline) -> tuple[float, dict[str, Any]]:
        """When that happened to the window, or to any while there is none, and to which."""
        while True:
            select.select([self._events], [], [], deadline.remaining())
            now = time.perf_counter()
            event = self._events.read()
            window = event.get("container", {})
            if event.get("change") == change and self._window in (0, window["id"]):
                return now, window
