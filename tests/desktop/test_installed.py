# SPDX-License-Identifier: MIT
"""The program as it is installed: called by its menu entry and started by the bus."""

import configparser
import os
import shutil
import subprocess
from pathlib import Path

from harness.case import DesktopCase
from harness.message_bus import MessageBus
from harness.paths import TREE
from harness.quorvane import BUS_INTERFACE, BUS_NAME, BUS_PATH
from harness.waiting import wait_until

_BUILD = os.environ.get("QUORVANE_BUILD", TREE / "build")
_CMAKE = os.environ.get("QUORVANE_CMAKE", "cmake")


class Installed(DesktopCase):
    """Installed below a folder of the session, the bus knows its service and nobody has run it."""

    def setUp(self) -> None:
        super().setUp()
        self.prefix = self.session.directory("prefix")
        subprocess.run(
            [_CMAKE, "--install", _BUILD, "--prefix", self.prefix],
            check=True,
            stdout=subprocess.DEVNULL,
            timeout=60,
        )
        self.bus = MessageBus(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.bus.close)
        shutil.copy(
            self.prefix / "share" / "dbus-1" / "services" / f"{BUS_NAME}.service",
            self.session.root / "bus" / "services",
        )
        daemon = "org.freedesktop.DBus"
        self.bus.call(daemon, "/org/freedesktop/DBus", daemon, "ReloadConfig", "()")
        # The bus does not stay behind with it.
        self.addCleanup(self.end)

    def test_the_actions_of_its_menu_do_what_they_say(self) -> None:
        self.choose("preferences")
        self.wait_window("Quorvane Preferences")
        self.assertIsNone(self.window("Quorvane"), "the panel")
        self.choose("toggle")
        self.wait_window("Quorvane")
        self.choose("toggle")
        self.wait_no_window("Quorvane")
        self.choose("quit")
        wait_until(lambda: not self.bus.has_owner(BUS_NAME), "its end")

    def test_show_or_hide_starts_it_with_its_panel(self) -> None:
        self.choose("toggle")
        self.wait_window("Quorvane")

    def test_its_entry_in_the_menu_starts_it_with_its_panel(self) -> None:
        for start in (self.start_by_bus, self.start_by_command):
            with self.subTest(start=start.__name__):
                start()
                self.wait_window("Quorvane")
                self.choose("quit")
                wait_until(lambda: not self.bus.has_owner(BUS_NAME), "its end")

    def start_by_bus(self) -> None:
        """What a launcher does that knows how to."""
        self.bus.call(BUS_NAME, BUS_PATH, BUS_INTERFACE, "Activate", "(a{sv})", {})

    def start_by_command(self) -> None:
        """What other launchers do."""
        self.session.start([self.entry("Desktop Entry")["Exec"]])
        wait_until(lambda: self.bus.has_owner(BUS_NAME), "its name on the bus")

    def choose(self, action: str) -> None:
        """What a launcher does with an action if it does not call the bus by itself."""
        self.session.run(self.entry(f"Desktop Action {action}")["Exec"].split())

    def entry(self, section: str) -> configparser.SectionProxy:
        """A section of the installed desktop file."""
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str  # type: ignore[assignment, method-assign]
        parser.read(self.prefix / "share" / "applications" / f"{BUS_NAME}.desktop")
        return parser[section]

    def program(self) -> int:
        """The process that has the name."""
        pid = self.bus.pid_of(BUS_NAME)
        self.assertEqual(self.prefix / "bin" / "quorvane", Path(f"/proc/{pid}/exe").resolve())
        return pid

    def window(self, title: str) -> int | None:
        """A window of the program that shows."""
        return self.session.windows.of_process(self.program(), title)

    def wait_window(self, title: str) -> None:
        """Waits until it shows."""
        self.session.windows.wait(lambda: self.window(title), title)

    def wait_no_window(self, title: str) -> None:
        """Waits until it does not show any more."""
        self.session.windows.wait(lambda: self.window(title) is None, f"no {title}")

    def end(self) -> None:
        """Ends it where a test has not."""
        if self.bus.has_owner(BUS_NAME):
            self.choose("quit")
            wait_until(lambda: not self.bus.has_owner(BUS_NAME), "its end")
