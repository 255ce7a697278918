# SPDX-License-Identifier: MIT
"""A whole session of KWin without a screen."""

import shutil
import sys
from contextlib import ExitStack
from pathlib import Path

from ..accessible import Accessibility
from ..paths import PROGRAM, TREE
from ..private_session import PrivateSession
from ..session_bus import SessionBus
from ..waiting import wait_until
from .windows import KwinWindows

SIZE = (1280, 800)
"""The screen, in pixels."""

_SETTINGS = """\
[Desktops]
Number=2
Rows=1

[Plugins]
slideEnabled=false
"""

_SOCKET = "wayland-kwin"

# The tests are a taskbar and a user's hands. KWin looks into the first file of applications that
# names the path of a program, which is the one that the interpreter's package brings.
_INTERPRETER = """\
[Desktop Entry]
Type=Application
Name=Tests
Exec={program}
X-KDE-Wayland-Interfaces=org_kde_kwin_fake_input,org_kde_plasma_window_management
"""


class KwinSession(PrivateSession):
    """KWin with XWayland and a bus, and Quorvane installed; to be used inside of harness.sandbox."""

    windows: KwinWindows  # type: ignore[assignment]

    def __init__(self, is_installed: bool = True) -> None:
        """`is_installed`: the user's applications have Quorvane among them."""
        super().__init__()
        self._is_installed = is_installed

    @property
    def socket(self) -> Path:
        """Where the compositor listens."""
        return self.directory("run") / _SOCKET

    def kill_compositor(self) -> None:
        """Ends KWin as a crash would."""
        self._compositor.kill()
        self._compositor.wait()

    def _begin(self, undo: ExitStack) -> None:
        # No settings daemon: GTK programs start at once.
        self.environment |= {
            "GSETTINGS_BACKEND": "memory",
            "XDG_CURRENT_DESKTOP": "KDE",
            "XDG_SESSION_TYPE": "wayland",
        }
        self.bus = SessionBus(self._processes, self.environment.copy(), self.directory("bus"))
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        (self.directory("config") / "kwinrc").write_text(_SETTINGS)
        self._install()
        self._start_compositor()
        self.windows = KwinWindows(self.socket)
        undo.callback(self.windows.close)
        self.accessibility = Accessibility(self.bus.address)
        undo.callback(self.accessibility.close)

    def _install(self) -> None:
        # KWin reads all of it to know the program again, for each connection and interface.
        self.program = self.root / PROGRAM.name
        self.run(["strip", "-o", str(self.program), str(PROGRAM)])
        applications = self.directory("data") / "applications"
        applications.mkdir()
        interpreter = Path(sys.executable).resolve()
        tests = applications / f"{interpreter.name}.desktop"
        tests.write_text(_INTERPRETER.format(program=interpreter))
        if self._is_installed:
            entry = "org.quorvane.Quorvane.desktop"
            text = (TREE / "packaging" / f"{entry}.in").read_text()
            folder = str(self.root)
            (applications / entry).write_text(text.replace("@CMAKE_INSTALL_FULL_BINDIR@", folder))

    def _start_compositor(self) -> None:
        # The packaged file carries a capability, which a sandbox does not give.
        program = self.root / "kwin_wayland"
        shutil.copyfile(shutil.which("kwin_wayland") or "", program)
        program.chmod(0o700)
        displays = self.root / "displays"
        width, height = SIZE
        # The last argument is run when the session is ready.
        self._compositor = self.start(
            [str(program), "--virtual", "--xwayland", "--width", str(width)]
            + ["--height", str(height), "--no-lockscreen", "--no-kactivities"]
            + ["--socket", _SOCKET, str(_script(self.root, displays))],
            {"KWIN_COMPOSE": "Q"},
        )
        self.display = wait_until(lambda: self._told(displays), "KWin")
        self.environment |= {"DISPLAY": self.display, "WAYLAND_DISPLAY": _SOCKET}

    def _told(self, file: Path) -> str | None:
        if self._compositor.poll() is not None:
            raise RuntimeError(f"no KWin:\n{self.logs()}")
        return file.read_text().strip() or None if file.exists() else None


def _script(folder: Path, output: Path) -> Path:
    """A program that tells the name of the X server."""
    script = folder / "ready"
    script.write_text(f'#!/bin/sh\nprintenv DISPLAY >"{output}"\n')
    script.chmod(0o700)
    return script
