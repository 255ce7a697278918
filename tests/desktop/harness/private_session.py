# SPDX-License-Identifier: MIT
"""What every desktop session of the tests is made in: nothing is shared with the user's own."""

import os
import re
import shutil
import subprocess
import tempfile
from abc import ABC, abstractmethod
from collections.abc import Mapping, Sequence
from contextlib import ExitStack
from pathlib import Path
from types import TracebackType
from typing import Any, Self

from .accessible import Accessibility
from .paths import FONTS, PROGRAM
from .processes import Processes
from .session_bus import SessionBus
from .windows import Windows

_INHERITED = (
    "PATH",
    "QT_LOGGING_RULES",
    "ASAN_OPTIONS",
    "LSAN_OPTIONS",
    "TSAN_OPTIONS",
    "UBSAN_OPTIONS",
)

_OF_THE_LOCALE = re.compile(r"^Detected locale (?:.*\n){4}", re.MULTILINE)


class PrivateSession(ABC):
    """Directories and processes of its own; each kind of desktop adds what it is made of.

    Use it as a context manager; leaving it ends every process and removes every file.
    """

    display: str
    windows: Windows
    accessibility: Accessibility
    bus: SessionBus

    backend = ""
    """The services of the display that programs under test are to use; empty for their choice."""

    is_new_user = False
    """Whether nobody has started Quorvane before in this session."""

    program = PROGRAM
    """Quorvane's, as it is installed in this session."""

    def __init__(self) -> None:
        self.environment: dict[str, str] = {}
        self._stack = ExitStack()

    def __enter__(self) -> Self:
        with ExitStack() as undo:
            self.root = Path(tempfile.mkdtemp(prefix="qv-"))
            undo.callback(shutil.rmtree, self.root, ignore_errors=True)
            self._processes = Processes(self.directory("logs"))
            undo.callback(self._processes.stop_all)
            self._make_environment()
            self._begin(undo)
            self._stack = undo.pop_all()
        return self

    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        trace: TracebackType | None,
    ) -> None:
        self._stack.close()

    @abstractmethod
    def _begin(self, undo: ExitStack) -> None:
        """Starts the desktop; `undo` takes back what ending the processes does not."""

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

    def logs(self) -> str:
        """What the programs of the session wrote so far."""
        files = sorted((self.root / "logs").iterdir())
        return "".join(f"--- {file.stem}\n{file.read_text(errors='replace')}" for file in files)

    def log(self, program: str) -> str:
        """What a program wrote so far, in all its runs."""
        return (self.root / "logs" / f"{program}.log").read_text(errors="replace")

    def lines(self, program: str) -> list[str]:
        """The lines of its log, without what Qt 6.8 says of a locale that the machine lacks."""
        return _OF_THE_LOCALE.sub("", self.log(program)).splitlines()

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
            # No portal in between: GTK programs start at once and alike.
            "GTK_USE_PORTAL": "0",
        }
