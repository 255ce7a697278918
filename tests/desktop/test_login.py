# SPDX-License-Identifier: MIT
"""Starts by the session, at which nothing shows, and the switch that decides about them."""

import configparser
import os
import subprocess
from pathlib import Path

from harness.accessible import State
from harness.case import DesktopCase
from harness.key_holder import KeyHolder
from harness.message_bus import MessageBus
from harness.paths import PROGRAM
from harness.quorvane import BUS_NAME, Quorvane
from harness.waiting import PATIENCE, wait_until


class Login(DesktopCase):
    """What a log-in starts, and what the preferences write for it."""

    def test_nothing_shows_until_the_shortcut_is_pressed(self) -> None:
        quorvane = Quorvane(self.session, "--hidden")
        self.wait_launched(quorvane)
        self.assertIsNone(quorvane.panel())
        self.summon(quorvane)

    def test_it_leaves_the_running_program_as_it_is(self) -> None:
        quorvane = self.hidden_quorvane()
        self.assertEqual(0, quorvane.launch("--hidden").wait(10))
        self.wait_launched(quorvane)
        self.assertIsNone(quorvane.panel())

    def test_without_icon_and_shortcut_the_panel_shows_after_all(self) -> None:
        holder = KeyHolder(self.session)
        self.addCleanup(holder.close)
        quorvane = Quorvane(self.session, "--hidden")
        # It gives a bar and the shortcut their time to come.
        wait_until(quorvane.panel, "the panel after all", 2 * PATIENCE)

    def test_any_other_option_is_refused_with_one_line(self) -> None:
        for option in ("--hide", "--version", "file"):
            refused = subprocess.run(
                [PROGRAM, option],
                env=self.session.environment,
                capture_output=True,
                text=True,
                timeout=30,
                check=False,
            )
            self.assertEqual(2, refused.returncode)
            self.assertEqual("", refused.stdout)
            self.assertEqual(1, refused.stderr.count("\n"), refused.stderr)
            self.assertIn(option, refused.stderr)

    def test_the_preferences_switch_it_on_and_follow_the_users_files(self) -> None:
        quorvane = self.hidden_quorvane()
        quorvane.action("preferences")
        switch = quorvane.tree().find_role("check box", "Start at login")
        self.assertFalse(switch.has(State.CHECKED))
        switch.press()
        entry = wait_until(self.entry, "the entry")
        self.assertEqual("quorvane --hidden", entry["Exec"])
        self.assertEqual("quorvane", entry["TryExec"])
        wait_until(lambda: switch.has(State.CHECKED), "the switch to be on")
        # What desktops do that let their users decide about it.
        written = self.entry_file().read_text()
        for change in ("Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"):
            with self.subTest(change=change):
                self.entry_file().write_text(written + change)
                wait_until(lambda: not switch.has(State.CHECKED), "the switch to be off")
                self.replace_entry(written)
                wait_until(lambda: switch.has(State.CHECKED), "the switch to be on")
        self.entry_file().unlink()
        wait_until(lambda: not switch.has(State.CHECKED), "the switch to follow")
        quorvane.quit()
        self.start_entry(entry["Exec"])

    def start_entry(self, command: str) -> None:
        """What a session does with an entry: the program is found by its name."""
        path = f"{PROGRAM.parent}{os.pathsep}{self.session.environment['PATH']}"
        self.session.start(["env", f"PATH={path}", *command.split()])
        bus = MessageBus(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(bus.close)
        wait_until(lambda: bus.has_owner(BUS_NAME), "the program to run")

    def replace_entry(self, text: str) -> None:
        """What a desktop does that writes settings whole."""
        file = self.entry_file().with_suffix(".new")
        file.write_text(text)
        file.rename(self.entry_file())

    def entry_file(self) -> Path:
        """Where the session's user has the entry."""
        return self.session.directory("config") / "autostart" / "org.quorvane.Quorvane.desktop"

    def entry(self) -> configparser.SectionProxy | None:
        """What stands in it; none while there is none."""
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str  # type: ignore[assignment, method-assign]
        found = parser.read(self.entry_file())
        return parser["Desktop Entry"] if found else None

    def wait_launched(self, quorvane: Quorvane) -> None:
        """Waits until the start is over: what the bus asks for is done after it."""
        quorvane.action("copy")
        wait_until(lambda: self.clipboard.data("UTF8_STRING"), "the text on the clipboard")
