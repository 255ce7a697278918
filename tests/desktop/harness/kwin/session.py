# SPDX-License-Identifier: MIT
"""A whole session of KWin without a screen."""

import shutil
import sys
from contextlib import ExitStack
from pathlib import Path

from Xlib import Xatom
from Xlib.display import Display

from ..accessible import Accessibility
from ..message_bus import MessageBus
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

[Xwayland]
Scale={scale}
"""

_SOCKET = "wayland-kwin"
_LOCK = ("org.freedesktop.ScreenSaver", "/ScreenSaver", "org.freedesktop.ScreenSaver")

# The tests are a taskbar and a user's hands. KWin looks into the first file of applications that
# names the path of a program, which is the one that the interpreter's package brings.
_INTERPRETER = """\
[Desktop Entry]
Type=Application
Name=Tests
Exec={program}
X-KDE-Wayland-Interfaces=org_kde_kwin_fake_input,org_kde_kwin_keystate,org_kde_plasma_window_management
"""


# From here KWin knows which applications there are; on a whole desktop the menu is Plasma's.
_MENU = """\
<!DOCTYPE Menu PUBLIC "-//freedesktop//DTD Menu 1.0//EN"
 "http://www.freedesktop.org/standards/menu-spec/1.0/menu.dtd">
<Menu>
  <Name>Applications</Name>
  <DefaultAppDirs/>
  <DefaultDirectoryDirs/>
  <Include><All/></Include>
</Menu>
"""


class KwinSession(PrivateSession):
    """KWin with XWayland and a bus, and Quorvane installed; to be used inside of harness.sandbox."""

    windows: KwinWindows  # type: ignore[assignment]

    def __init__(
        self,
        is_installed: bool = True,
        scale: float = 1,
        has_lock: bool = False,
        settings: str = "",
    ) -> None:
        """`is_installed`: the user's applications have Quorvane among them. `settings` are KWin's,
        beside those of all tests."""
        super().__init__()
        self._settings = settings
        self._is_installed = is_installed
        self._scale = scale
        self._has_lock = has_lock

    @property
    def socket(self) -> Path:
        """Where the compositor listens."""
        return self.directory("run") / _SOCKET

    def kill_compositor(self) -> None:
        """Ends KWin as a crash would."""
        self._compositor.kill()
        self._compositor.wait()

    def lock(self) -> None:
        """Locks the screen as the user does, and waits until it is."""
        bus = MessageBus(self.bus.address)
        bus.call(*_LOCK, "Lock")
        wait_until(lambda: bus.call(*_LOCK, "GetActive")[0], "a locked screen", interval=0.05)
        bus.close()

    def _begin(self, undo: ExitStack) -> None:
        # No settings daemon: GTK programs start at once.
        self.environment |= {
            "GSETTINGS_BACKEND": "memory",
            "XDG_CURRENT_DESKTOP": "KDE",
            "XDG_SESSION_TYPE": "wayland",
        }
        self.bus = SessionBus(self._processes, self.environment.copy(), self.directory("bus"))
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        settings = _SETTINGS.format(scale=self._scale) + self._settings
        (self.directory("config") / "kwinrc").write_text(settings)
        self._install()
        self._start_compositor()
        self.windows = KwinWindows(self.socket, self.display)
        undo.callback(self.windows.close)
        self.accessibility = Accessibility(self.bus.address)
        undo.callback(self.accessibility.close)

    def _install(self) -> None:
        # KWin reads all of it to know the program again, for each connection and interface.
        self.program = self.root / PROGRAM.name
        self.run(["strip", "-o", str(self.program), str(PROGRAM)])
        menus = self.directory("config") / "menus"
        menus.mkdir()
        (menus / "applications.menu").write_text(_MENU)
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
        command = [str(program), "--virtual", "--xwayland", "--scale", str(self._scale)]
        command += ["--width", str(width), "--height", str(height), "--no-kactivities"]
        command += [] if self._has_lock else ["--no-lockscreen"]
        command += ["--socket", _SOCKET, str(_script(self.root, displays))]
        self._compositor = self.start(command, {"KWIN_COMPOSE": "Q"})
        self.display = wait_until(lambda: self._told(displays), "KWin")
        self.environment |= {"DISPLAY": self.display, "WAYLAND_DISPLAY": _SOCKET}
        if self._scale != 1:
            self._tell_scale()

    def _tell_scale(self) -> None:
        """What the desktop's module for fonts tells programs of X11 at a login."""
        display = Display(self.display)
        value = f"Xft.dpi:\t{round(96 * self._scale)}\n".encode()
        display.screen().root.change_property(Xatom.RESOURCE_MANAGER, Xatom.STRING, 8, value)
        display.close()

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
