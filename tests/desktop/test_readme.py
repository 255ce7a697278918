# SPDX-License-Identifier: MIT
"""What the README tells its reader to type does what it says there."""

from harness.case import DesktopCase
from harness.quorvane import BUS_NAME, Quorvane
from harness.readme import commands
from harness.waiting import wait_until

# Run by those who run the tests themselves, and by the test of the package in fresh systems.
_RUN_ELSEWHERE = {
    "./dev run",
    "./dev test",
    "./dev package",
    "sudo apt install ./build/package/quorvane_*.deb",
}


class Readme(DesktopCase):
    """Commands are taken from its text as they stand."""

    def setUp(self) -> None:
        super().setUp()
        self.commands = [command for command in commands() if command not in _RUN_ELSEWHERE]

    def test_each_command_is_run_by_a_test(self) -> None:
        unknown = [line for line in self.commands if not self._calls(line) and not self._logs(line)]
        self.assertEqual([], unknown)
        self.assertEqual(2, len(self.commands))

    def test_call_over_the_bus_toggles_the_panel(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        call = next(line for line in self.commands if self._calls(line))
        self.session.run(["sh", "-c", call])
        quorvane.wait_hidden()
        self.session.run(["sh", "-c", call])
        quorvane.wait_active()

    def test_start_with_every_category_on_tells_what_is_done(self) -> None:
        path = f"{self.session.program.parent}:{self.session.environment['PATH']}"
        start = next(line for line in self.commands if self._logs(line))
        self.session.start(["sh", "-c", start], {"PATH": path})
        wait_until(lambda: "quorvane.backend: " in self.session.log("sh"), "a line of the log")

    def _calls(self, line: str) -> bool:
        return line.startswith("gdbus call ") and BUS_NAME in line

    def _logs(self, line: str) -> bool:
        return line.startswith("QT_LOGGING_RULES=") and line.endswith(" quorvane")
