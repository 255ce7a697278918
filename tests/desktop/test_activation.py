# SPDX-License-Identifier: MIT
"""Opened by launchers: the desktop sees the start end, and the windows come to the front."""

import os
from pathlib import Path

from harness.case import DesktopCase
from harness.installation import Installation
from harness.keys import Key
from harness.launching import open_launcher
from harness.quorvane import Quorvane
from harness.startup_monitor import StartupMonitor
from harness.waiting import wait_until

_ID = "launcher/quorvane \"one\"/7-1-host_TIME1000"


class Launched(DesktopCase):
    """A launcher opens the program that is installed, and a monitor follows that."""

    def setUp(self) -> None:
        super().setUp()
        self.installation = Installation(self.session)
        self.addCleanup(self.installation.close)
        self.monitor = StartupMonitor(self.session.display)
        self.addCleanup(self.monitor.close)

    def test_starts_by_the_bus_end_with_what_was_chosen(self) -> None:
        self.launch(self.installation.desktop_file)
        self.installation.wait_window("Quorvane")
        self.expect_end()
        self.launch(self.installation.desktop_file, "preferences")
        self.installation.wait_window("Quorvane Preferences")
        self.expect_end()

    def test_starts_by_commands_end_with_what_was_chosen(self) -> None:
        file = self.without_the_bus()
        self.launch(file)
        self.installation.wait_window("Quorvane")
        self.expect_end()
        # Nothing shows that could tell the desktop.
        self.launch(file, "toggle")
        self.installation.wait_no_window("Quorvane")
        self.expect_end()
        self.launch(file)
        self.installation.wait_window("Quorvane")
        self.expect_end()

    def without_the_bus(self) -> Path:
        """The desktop file as launchers see it that do not know how to call the bus."""
        file = self.session.root / self.installation.desktop_file.name
        text = self.installation.desktop_file.read_text()
        self.assertIn("DBusActivatable=true\n", text)
        file.write_text(text.replace("DBusActivatable=true\n", ""))
        return file

    def launch(self, file: Path, *action: str) -> None:
        """What a user does in a menu."""
        self.launcher = open_launcher(self.session, str(file), *action)
        self.keyboard.tap(Key.RETURN)
        self.monitor.wait_begun()
        self.installation.wait_running()

    def expect_end(self) -> None:
        """Waits until the start that the launcher has announced is over."""
        self.monitor.wait_ended(self.monitor.wait_begun())
        self.monitor.begun.clear()
        self.session.stop(self.launcher)


class Focus(DesktopCase):
    """The window manager lets nothing take the keyboard that the user did not ask for."""

    def setUp(self) -> None:
        super().setUp()
        if os.environ.get("QUORVANE_TEST_WM") == "xfwm4":
            setting = "/general/prevent_focus_stealing"
            self.session.run(
                ["xfconf-query", "-c", "xfwm4", "-p", setting, "-n", "-t", "bool", "-s", "true"]
            )

    def test_what_is_opened_comes_to_the_front_while_the_user_types_elsewhere(self) -> None:
        quorvane = self.hidden_quorvane()
        editor = self.editor()
        self.keyboard.tap(Key.D)
        editor.wait_text("d")
        quorvane.activate()
        quorvane.wait_active()
        quorvane.action("toggle")
        quorvane.wait_hidden()
        editor.wait_active()
        self.keyboard.tap(Key.D)
        editor.wait_text("dd")
        quorvane.action("preferences")
        windows = self.session.windows
        windows.wait(
            lambda: windows.title(windows.active() or 0) == "Quorvane Preferences",
            "the preferences in front",
        )

    def test_the_message_about_updates_comes_to_the_front(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        quorvane.tree().find("More").press()
        quorvane.tree().find("Check for Updates…").press()
        windows = self.session.windows
        windows.wait(
            lambda: windows.title(windows.active() or 0) == "Updates", "the message in front"
        )
        wait_until(
            lambda: quorvane.tree().shows_named("This Quorvane is updated by hand."),
            "what it says",
        )

    def test_a_second_start_hands_on_what_it_was_started_with(self) -> None:
        monitor = StartupMonitor(self.session.display)
        self.addCleanup(monitor.close)
        quorvane = self.hidden_quorvane()
        editor = self.editor()
        self.keyboard.tap(Key.D)
        editor.wait_text("d")
        monitor.announce(_ID.replace('"', '\\"'))
        second = self.session.start(
            [str(self.session.program)], {"DESKTOP_STARTUP_ID": _ID, "LANG": "en_US.UTF-8"}
        )
        self.assertEqual(0, second.wait(10))
        quorvane.wait_active()
        monitor.wait_ended(_ID)


class FirstStart(DesktopCase):
    """A launcher that knows nothing of the bus starts the program by its name."""

    def test_the_start_that_it_was_begun_with_ends(self) -> None:
        monitor = StartupMonitor(self.session.display)
        self.addCleanup(monitor.close)
        for options in ([], ["--hidden"]):
            with self.subTest(options=options):
                identifier = f"start{len(options)}_TIME1"
                monitor.announce(identifier)
                quorvane = Quorvane(self.session, *options, DESKTOP_STARTUP_ID=identifier)
                monitor.wait_ended(identifier)
                quorvane.quit()
