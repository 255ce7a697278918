# SPDX-License-Identifier: MIT
"""A whole desktop session that shares nothing with the one the tests run in."""

import os
import shutil
import subprocess
import tempfile
from collections.abc import Mapping, Sequence
from contextlib import ExitStack
from pathlib import Path
from types import TracebackType
from typing import Any

from .accessible import Accessibility
from .paths import FONTS, TREE
from .processes import Processes
from .session_bus import SessionBus
from .windows import Windows

_WINDOW_MANAGERS = {
    "openbox": ["openbox", "--sm-disable"],
    "xfwm4": ["xfwm4", "--compositor=off"],
    "i3": ["i3", "-c", str(TREE / "tests" / "desktop" / "harness" / "i3.conf")],
}

_INHERITED = ("PATH", "QT_LOGGING_RULES", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")


class Session:
    """An X server, a bus, directories of its own, and a window manager if one is named.

    Use it as a context manager; leaving it ends every process and removes every file.
    """

    def __init__(self, window_manager: str | None) -> None:
        self.window_manager = window_manager
        self.environment: dict[str, str] = {}
        self._stack = ExitStack()

    def __enter__(self) -> "Session":
        with ExitStack() as undo:
            self.root = Path(tempfile.mkdtemp(prefix="qv-"))
            undo.callback(shutil.rmtree, self.root, ignore_errors=True)
            logs = self.directory("logs")
            self._processes = Processes(logs)
            undo.callback(self._processes.stop_all)
            self._make_environment()
            self.display = self._start_server()
            self.environment["DISPLAY"] = self.display
            self.bus = self._make_bus("bus")
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
            self.windows = Windows(self.display)
            undo.callback(self.windows.close)
            self.accessibility = Accessibility(self.environment["DBUS_SESSION_BUS_ADDRESS"])
            undo.callback(self.accessibility.close)
            if self.window_manager:
                self.start(_WINDOW_MANAGERS[self.window_manager])
                self.windows.wait_for_manager()
            self._stack = undo.pop_all()
        return self

    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        trace: TracebackType | None,
    ) -> None:
        self._stack.close()

    def directory(self, name: str) -> Path:
        """A directory of the session, made on first use and readable by its user alone."""
        path = self.root / name
        path.mkdir(mode=0o700, exist_ok=True)
        return path

    def start(
        self, command: Sequence[str], environment: Mapping[str, str] | None = None, **options: Any
    ) -> subprocess.Popen[bytes]:
        """Starts a program in the session; `environment` adds to the session's own."""
        return self._processes.start(command, self.environment | dict(environment or {}), **options)

    def stop(self, process: subprocess.Popen[bytes]) -> None:
        """Ends a program of the session."""
        self._processes.stop(process)

    def run(self, command: Sequence[str]) -> None:
        """Runs a short command in the session to its end; it has to succeed."""
        subprocess.run(command, env=self.environment, check=True, timeout=30)

    def start_bus(self, name: str) -> str:
        """Starts a bus that is empty but for its services, and returns its address."""
        return self._make_bus(name).address

    def logs(self) -> str:
        """What the programs of the session wrote so far."""
        files = sorted((self.root / "logs").iterdir())
        return "".join(f"--- {file.stem}\n{file.read_text(errors='replace')}" for file in files)

    def restart_bus(self) -> None:
        """Ends the session's bus as a crash would, and starts another one at its place."""
        self.bus.restart()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address

    def log(self, program: str) -> str:
        """What a program wrote so far, in all its runs."""
        return (self.root / "logs" / f"{program}.log").read_text(errors="replace")

    def _make_bus(self, name: str) -> SessionBus:
        return SessionBus(self._processes, self.environment.copy(), self.directory(name))

    def _make_environment(self) -> None:
        self.environment = {name: os.environ[name] for name in _INHERITED if name in os.environ}
        self.environment |= {
            "HOME": str(self.directory("home")),
            "XDG_CONFIG_HOME": str(self.directory("config")),
            "XDG_DATA_HOME": str(self.directory("data")),
            "XDG_STATE_HOME": str(self.directory("state")),
            "XDG_CACHE_HOME": str(self.directory("cache")),
            "XDG_RUNTIME_DIR": str(self.directory("run")),
            "LANG": "C.UTF-8",
            "TZ": "UTC",
            "FONTCONFIG_FILE": str(FONTS),
            # Whatever a desktop's defaults on this machine say.
            "GTK_THEME": "Adwaita",
            # Toolkits publish their accessible tree without a screen reader in sight.
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            # No settings daemon and no portal: GTK programs start at once and alike.
            "GSETTINGS_BACKEND": "memory",
            "GTK_USE_PORTAL": "0",
        }

    def _start_server(self) -> str:
        reading, writing = os.pipe()
        try:
            self._processes.start(
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
        return f":{number}"
