# SPDX-License-Identifier: MIT
"""The program installed in a session, as the session's launchers and its bus find it."""

import configparser
import os
import shutil
import subprocess
from pathlib import Path

from .message_bus import MessageBus
from .paths import TREE
from .private_session import PrivateSession
from .quorvane import BUS_INTERFACE, BUS_NAME, BUS_PATH
from .waiting import wait_until

_BUILD = os.environ.get("QUORVANE_BUILD", TREE / "build")
_CMAKE = os.environ.get("QUORVANE_CMAKE", "cmake")


class Installation:
    """Installed below a folder of the session; the bus knows its service and nobody has run it."""

    def __init__(self, session: PrivateSession) -> None:
        self._session = session
        self.prefix = session.directory("prefix")
        install(self.prefix)
        self.bus = MessageBus(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        shutil.copy(
            self.prefix / "share" / "dbus-1" / "services" / f"{BUS_NAME}.service",
            session.root / "bus" / "services",
        )
        daemon = "org.freedesktop.DBus"
        self.bus.call(daemon, "/org/freedesktop/DBus", daemon, "ReloadConfig", "()")

    @property
    def desktop_file(self) -> Path:
        """What launchers read."""
        return self.prefix / "share" / "applications" / f"{BUS_NAME}.desktop"

    def close(self) -> None:
        """Ends the program where a test has not: the bus does not stay behind with it."""
        self.end()
        self.bus.close()

    def end(self) -> None:
        """Ends it in its own way; harmless where it does not run."""
        if self.bus.has_owner(BUS_NAME):
            self.choose("quit")
            self.wait_ended()

    def wait_ended(self) -> None:
        """Waits until it has left the bus."""
        wait_until(lambda: not self.bus.has_owner(BUS_NAME), "its end")

    def wait_running(self) -> None:
        """Waits until it is on the bus."""
        wait_until(lambda: self.bus.has_owner(BUS_NAME), "its name on the bus")

    def start_by_bus(self) -> None:
        """What a launcher does that knows how to."""
        self.bus.call(BUS_NAME, BUS_PATH, BUS_INTERFACE, "Activate", "(a{sv})", {})

    def start_by_command(self) -> None:
        """What other launchers do."""
        self._session.start([self.entry("Desktop Entry")["Exec"]])
        self.wait_running()

    def choose(self, action: str) -> None:
        """What a launcher does with an action if it does not call the bus by itself."""
        self._session.run(self.entry(f"Desktop Action {action}")["Exec"].split())

    def entry(self, section: str) -> configparser.SectionProxy:
        """A section of the installed desktop file."""
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str  # type: ignore[assignment, method-assign]
        parser.read(self.desktop_file)
        return parser[section]

    def program(self) -> int:
        """The process that has the name."""
        pid = self.bus.pid_of(BUS_NAME)
        expected = self.prefix / "bin" / "quorvane"
        if Path(f"/proc/{pid}/exe").resolve() != expected:
            raise AssertionError(f"{pid} is not {expected}")
        return pid

    def window(self, title: str) -> int | None:
        """A window of the program that shows."""
        return self._session.windows.of_process(self.program(), title)

    def wait_window(self, title: str) -> int:
        """Waits until it shows."""
        return self._session.windows.wait(lambda: self.window(title), title)

    def wait_no_window(self, title: str) -> None:
        """Waits until it does not show any more."""
        self._session.windows.wait(lambda: self.window(title) is None, f"no {title}")


def install(prefix: Path | str, **environment: str) -> None:
    """Installs the build below a prefix."""
    subprocess.run(
        [_CMAKE, "--install", _BUILD, "--prefix", prefix],
        env=os.environ | environment,
        check=True,
        stdout=subprocess.DEVNULL,
        timeout=60,
    )
