# SPDX-License-Identifier: MIT
"""The program as it is installed: called by its menu entry and started by the bus."""

from harness.case import DesktopCase
from harness.installation import Installation, install
from harness.waiting import wait_until


class Installed(DesktopCase):
    """Installed below a folder of the session, the bus knows its service and nobody has run it."""

    def setUp(self) -> None:
        super().setUp()
        self.installation = Installation(self.session)
        self.addCleanup(self.installation.close)

    def test_the_actions_of_its_menu_do_what_they_say(self) -> None:
        installed = self.installation
        installed.choose("preferences")
        installed.wait_window("Quorvane Preferences")
        self.assertIsNone(installed.window("Quorvane"), "the panel")
        installed.choose("toggle")
        installed.wait_window("Quorvane")
        installed.choose("toggle")
        installed.wait_no_window("Quorvane")
        installed.choose("quit")
        installed.wait_ended()

    def test_show_or_hide_starts_it_with_its_panel(self) -> None:
        self.installation.choose("toggle")
        self.installation.wait_window("Quorvane")

    def test_its_entry_in_the_menu_starts_it_with_its_panel(self) -> None:
        for start in (self.installation.start_by_bus, self.installation.start_by_command):
            with self.subTest(start=start.__name__):
                start()
                self.installation.wait_window("Quorvane")
                self.installation.end()


class Staged(DesktopCase):
    """Installed for another place, as packages are made."""

    def test_it_runs_from_where_it_is_staged(self) -> None:
        stage = self.session.directory("stage")
        install("/usr", DESTDIR=str(stage))
        process = self.session.start([str(stage / "usr" / "bin" / "quorvane")])
        windows = self.session.windows
        windows.wait(lambda: windows.of_process(process.pid, "Quorvane"), "the panel")
        wait_until(
            lambda: self.session.accessibility.application(process.pid).find_role(
                "text", "Preview"
            ),
            "its preview",
        )
