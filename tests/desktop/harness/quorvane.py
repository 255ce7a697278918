# SPDX-License-Identifier: MIT
"""The program under test, run and driven as a user and a desktop would."""

import json
import os
import subprocess
from pathlib import Path

from .accessible import Accessible
from .expected import ZONE
from .message_bus import MessageBus
from .private_session import PrivateSession
from .waiting import wait_until

BUS_NAME = "org.quorvane.Quorvane"
BUS_PATH = "/org/quorvane/Quorvane"
BUS_INTERFACE = "org.freedesktop.Application"

# What a failed test shows of the way from the shortcut to the text.
_LOGGED = "quorvane.insert=true;quorvane.keys=true;quorvane.shortcut=true;quorvane.tap=true"
_ENVIRONMENT = {
    "LANG": "en_US.UTF-8",
    "TZ": ZONE,
    "QT_LOGGING_RULES": os.environ.get("QT_LOGGING_RULES", _LOGGED),
}


class Quorvane:
    """One run of the program in a session."""

    def __init__(self, session: PrivateSession, *options: str, **environment: str) -> None:
        self._session = session
        if not session.is_new_user:
            _make_known(session)
        self._environment = _ENVIRONMENT | {"QUORVANE_BACKEND": session.backend} | environment
        self.process = self.launch(*options)

    def launch(self, *options: str) -> subprocess.Popen[bytes]:
        """Starts the program once more, as a launcher's icon does."""
        return self._session.start([str(self._session.program), *options], self._environment)

    def panel(self) -> int | None:
        """The panel's window while it shows."""
        return self._session.windows.of_process(self.process.pid, "Quorvane")

    def is_active(self) -> bool:
        """Whether the panel shows and has the keyboard."""
        return self._active_panel() is not None

    def wait_active(self) -> int:
        """Waits until the panel shows and has the keyboard, and returns its window."""
        return self._session.windows.wait(self._active_panel, "the panel to be active")

    def wait_hidden(self) -> None:
        """Waits until the panel does not show."""
        self._session.windows.wait(lambda: self.panel() is None, "the panel to be hidden")

    def wait_caught_up(self) -> None:
        """Waits until its main thread has done all that it was told: it waits itself."""
        stat = Path("/proc") / str(self.process.pid) / "stat"

        def is_waiting() -> bool:
            # The state follows the name, in which there may be anything.
            return stat.read_text().rpartition(")")[2].split()[0] == "S"

        wait_until(is_waiting, "the program to catch up")

    def hide(self) -> None:
        """Hides the panel, which every start shows."""
        self.wait_active()
        self.action("toggle")
        self.wait_hidden()

    def action(self, name: str) -> None:
        """What a desktop's own key binding calls: toggle, insert, copy, preferences, quit."""
        self._call("ActivateAction", "(sava{sv})", name, [], {})

    def activate(self) -> None:
        """What a desktop calls when the user opens the running program again."""
        self._call("Activate", "(a{sv})", {})

    def quit(self) -> int:
        """Ends the program in its own way and returns its exit status."""
        self.action("quit")
        return self.process.wait(10)

    def tree(self) -> Accessible:
        """The program's accessible tree."""
        return self._session.accessibility.application(self.process.pid)

    def preview(self) -> str:
        """The text that the panel shows as its result."""
        return self.tree().find_role("text", "Preview").text

    def _active_panel(self) -> int | None:
        panel = self.panel()
        return panel if self._session.windows.active() == panel else None

    def _call(self, method: str, signature: str, *values: object) -> None:
        bus = MessageBus(self._session.environment["DBUS_SESSION_BUS_ADDRESS"])
        try:
            # The first window may be there before the name is.
            wait_until(lambda: bus.has_owner(BUS_NAME), f"{BUS_NAME} on the bus")
            bus.call(BUS_NAME, BUS_PATH, BUS_INTERFACE, method, signature, *values)
        finally:
            bus.close()


def _make_known(session: PrivateSession) -> None:
    """Lets the session's user have seen what new users are told; settings of a test's own stay."""
    file = settings_file(session)
    if not file.exists():
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps({"shortcutHintDismissed": True}))


def settings_file(session: PrivateSession) -> Path:
    """Where the program keeps the settings of a session's user."""
    return session.directory("config") / "quorvane" / "defaults.json"


def stored_settings(session: PrivateSession) -> dict[str, object]:
    """What the file of settings holds; nothing while there is none."""
    file = settings_file(session)
    return json.loads(file.read_text()) if file.exists() else {}


def wait_stored(session: PrivateSession, **expected: object) -> None:
    """Waits until the file holds these values: settings are written beside the program's work."""
    wait_until(
        lambda: expected.items() <= stored_settings(session).items(), f"{expected} on the disk"
    )
