# SPDX-License-Identifier: MIT
"""Another program from which the user drags a text."""

import sys
from pathlib import Path

from .private_session import PrivateSession
from .waiting import wait_until

TEXT = "Lisbon"
"""What is dragged."""

_HERE = Path(__file__).parent


class DragSource:
    """A window of GTK that is a text to be dragged; what becomes of that goes into a file."""

    def __init__(self, session: PrivateSession) -> None:
        self._log = session.root / "drags"
        self._log.touch()
        program = [sys.executable, "-B", "-m", f"{__package__}.drag_program"]
        self.process = session.start(
            [*program, TEXT, str(self._log)], {"PYTHONPATH": str(_HERE.parent)}
        )
        windows = session.windows
        self.window = windows.wait(
            lambda: windows.of_process(self.process.pid), "the window to drag from"
        )

    def log(self) -> list[str]:
        """What has become of the drags: "begun", "accepted", "asked", "failed", "ended"."""
        return self._log.read_text().split()

    def wait_log(self, *lines: str) -> None:
        """Waits until exactly this has become of them."""
        wait_until(lambda: self.log() == list(lines), f"{lines}, not {self.log()}")
