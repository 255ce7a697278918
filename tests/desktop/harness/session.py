# SPDX-License-Identifier: MIT
"""A whole X11 desktop session that shares nothing with the one the tests run in."""

import os
import subprocess
from contextlib import ExitStack
from typing import NamedTuple

from .accessible import Accessibility
from .keys import Key, Keyboard
from .paths import TREE
from .private_session import PrivateSession
from .session_bus import SessionBus
from .windows import Windows

_WINDOW_MANAGERS = {
    "openbox": ["openbox", "--sm-disable"],
    "xfwm4": ["xfwm4", "--compositor=off"],
    "i3": ["i3", "-c", str(TREE / "tests" / "desktop" / "harness" / "i3.conf")],
}


class XServer(NamedTuple):
    """A running X server, and what its clients call it."""

    display: str
    process: subprocess.Popen[bytes]


class Session(PrivateSession):
    """An X server, a bus, directories of its own, and a window manager if one is named."""

    backend = "x11"

    def __init__(self, window_manager: str | None) -> None:
        super().__init__()
        self.window_manager = window_manager

    def start_bus(self, name: str) -> str:
        """Starts a bus that is empty but for its services, and returns its address."""
        return self._make_bus(name).address

    def start_server(self) -> XServer:
        """Starts an X server that nobody uses yet."""
        reading, writing = os.pipe()
        try:
            process = self._processes.start(
                # The server would otherwise begin a new life with every last client that leaves.
                ["Xvfb", "-displayfd", str(writing), "-noreset", "-nolisten", "tcp"]
                + ["-screen", "0", "1280x800x24"],
                self.environment,
                pass_fds=[writing],
            )
        finally:
            os.close(writing)
        with os.fdopen(reading) as announcement:
            number = announcement.readline().strip()
        if not number:
            raise RuntimeError(f"no X server:\n{self.logs()}")
        return XServer(f":{number}", process)

    def replace_manager(self, name: str) -> None:
        """Has another window manager take over, and waits until it has."""
        before = self.windows.manager()
        self.start([*_WINDOW_MANAGERS[name], "--replace"])
        self.windows.wait(
            lambda: self.windows.manager() not in (None, before), f"{name} to take over"
        )
        self.windows.wait_for_manager()

    def restart_bus(self) -> None:
        """Ends the session's bus as a crash would, and starts another one at its place."""
        self.bus.restart()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address

    def _begin(self, undo: ExitStack) -> None:
        # No settings daemon: GTK programs start at once.
        self.environment["GSETTINGS_BACKEND"] = "memory"
        self.display = self.start_server().display
        self.environment["DISPLAY"] = self.display
        self.bus = self._make_bus("bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        self.windows = Windows(self.display)
        undo.callback(self.windows.close)
        self.accessibility = Accessibility(self.bus.address)
        undo.callback(self.accessibility.close)
        self._use_keyboard()
        if self.window_manager:
            self.start(_WINDOW_MANAGERS[self.window_manager])
            self.windows.wait_for_manager()

    def _use_keyboard(self) -> None:
        """Presses a key while nobody hears it.

        With the first key of a device the server's keys become that device's, and a window manager
        takes all its shortcuts anew. On a busy machine xfwm4 has time for nothing else meanwhile, and
        gives the focus to nobody for half a second. A user's first key came long ago.
        """
        keyboard = Keyboard(self.display)
        keyboard.tap(Key.SHIFT)
        keyboard.close()

    def _make_bus(self, name: str) -> SessionBus:
        return SessionBus(self._processes, self.environment.copy(), self.directory(name))
