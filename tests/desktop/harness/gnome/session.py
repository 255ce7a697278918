# SPDX-License-Identifier: MIT
"""A whole GNOME session without a screen, a login manager or a graphics card."""

import re
import shutil
import subprocess
from collections.abc import Sequence
from contextlib import ExitStack
from os import environ
from pathlib import Path

from ..accessible import Accessibility
from ..message_bus import MessageBus
from ..paths import PROGRAM, TREE
from ..private_session import PrivateSession
from ..session_bus import SessionBus
from ..waiting import wait_until
from ..windows import Windows
from .hands import Hands
from .shell import Shell

_DAEMON = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")

_HERE = Path(__file__).parent
_PROBE = "probe@quorvane.org"
_FIRST_WITH_MODULES = 45  # of the releases, whose extensions are modules of JavaScript
_NAME = "org.quorvane.Quorvane"

# What programs of the session may have the bus start for them.
_SERVICES = (
    "ca.desrt.dconf.service",
    "org.a11y.Bus.service",
    "org.freedesktop.impl.portal.desktop.gnome.service",
    "org.freedesktop.impl.portal.desktop.gtk.service",
    "org.freedesktop.impl.portal.PermissionStore.service",
    "org.freedesktop.portal.Desktop.service",
    "org.gnome.Settings.GlobalShortcutsProvider.service",
    "org.gnome.Shell.Notifications.service",
)

_SETTINGS = (
    ("org.gnome.desktop.interface", "enable-animations", "false"),
    ("org.gnome.desktop.session", "idle-delay", "0"),
    # A program that gets no time for as long would take a tap for a key that is held.
    ("org.gnome.desktop.peripherals.keyboard", "repeat", "false"),
    ("org.gnome.desktop.lockdown", "disable-lock-screen", "true"),
    ("org.gnome.desktop.background", "picture-uri", "''"),
    ("org.gnome.shell", "welcome-dialog-last-shown-version", "'99'"),
    ("org.gnome.shell", "disable-extension-version-validation", "true"),
)

_DESKTOP = {
    "XDG_CURRENT_DESKTOP": "GNOME",
    "XDG_SESSION_DESKTOP": "gnome",
    "XDG_SESSION_TYPE": "wayland",
    "GNOME_SHELL_SESSION_MODE": "user",
    # One thread paints; the others would only take the processor from what is tested.
    "LIBGL_ALWAYS_SOFTWARE": "1",
    "LP_NUM_THREADS": "1",
}


class GnomeSession(PrivateSession):
    """GNOME Shell with XWayland, the daemon that runs the user's key bindings, and the portals.

    To be used inside of harness.sandbox.
    """

    shell: Shell
    hands: Hands

    release = 0
    """The number of GNOME's release."""

    def __init__(self, extensions: Sequence[str] = ()) -> None:
        """`extensions` are those of the shell, by their UUIDs, that run beside the tests' own."""
        super().__init__()
        self._extensions = [_PROBE, *extensions]

    def set(self, schema: str, key: str, value: str) -> None:
        """Changes a setting of the desktop; the value is written as GVariant's text."""
        self.run(["gsettings", "set", schema, key, value])

    def get(self, schema: str, key: str) -> str:
        """A setting of the desktop, as GVariant's text."""
        command = ["gsettings", "get", schema, key]
        return subprocess.check_output(command, env=self.environment, text=True).strip()

    def offer_service(self, name: str, command: str) -> None:
        """Lets the bus start a program when somebody calls its name."""
        file = self.directory("bus") / "services" / f"{name}.service"
        file.write_text(f"[D-BUS Service]\nName={name}\nExec={command}\n")
        bus = MessageBus(self.bus.address)
        bus.call(*_DAEMON, "ReloadConfig")
        bus.close()

    def _begin(self, undo: ExitStack) -> None:
        self.environment |= _DESKTOP
        self._start_buses()
        self.accessibility = Accessibility(self.bus.address)
        undo.callback(self.accessibility.close)
        self.release = self._find_release()
        self._install_probe()
        self._install_quorvane()
        for setting in _SETTINGS:
            self.set(*setting)
        self.set("org.gnome.shell", "enabled-extensions", str(self._extensions))
        self.start(["pipewire"])
        self.start(["gnome-shell", "--headless", "--wayland", "--virtual-monitor", "1280x800"])
        self.shell = Shell(self.bus.address)
        undo.callback(self.shell.close)
        self._follow_displays(undo)
        self.start(["/usr/libexec/gsd-media-keys"])
        self.hands = Hands(self.bus.address)
        undo.callback(self.hands.close)
        self._wait_for_key_bindings()

    def _start_buses(self) -> None:
        system = SessionBus(self._processes, self.environment, self.directory("system-bus"))
        self.environment["DBUS_SYSTEM_BUS_ADDRESS"] = system.address
        self.bus = SessionBus(
            self._processes, self.environment.copy(), self.directory("bus"), _SERVICES
        )
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address

    def _find_release(self) -> int:
        told = subprocess.check_output(["gnome-shell", "--version"], text=True)
        return int(told.split()[-1].split(".")[0])

    def _install_probe(self) -> None:
        probe = self.directory("data") / "gnome-shell" / "extensions" / _PROBE
        probe.mkdir(parents=True)
        shutil.copy(_HERE / "extension" / "metadata.json", probe)
        imports = "imports" if self.release >= _FIRST_WITH_MODULES else "imports_old"
        parts = [_HERE / "extension" / f"{part}.js" for part in (imports, "probe")]
        (probe / "extension.js").write_text("".join(part.read_text() for part in parts))

    def _install_quorvane(self) -> None:
        """What the shell looks for beside the program: its entry and its icons."""
        icons = self.directory("data") / "icons" / "hicolor"
        for file, folder in ((f"{_NAME}.svg", "scalable"), (f"{_NAME}-symbolic.svg", "symbolic")):
            (icons / folder / "apps").mkdir(parents=True)
            shutil.copy(TREE / "resources" / "icons" / file, icons / folder / "apps")
        applications = self.directory("data") / "applications"
        applications.mkdir()
        entry = (TREE / "packaging" / f"{_NAME}.desktop.in").read_text()
        program = entry.replace("@CMAKE_INSTALL_FULL_BINDIR@", str(PROGRAM.parent))
        (applications / f"{_NAME}.desktop").write_text(program)

    def _follow_displays(self, undo: ExitStack) -> None:
        """Lets programs find the compositor and its X server, those that the bus starts too."""
        runtime = self.directory("run")
        number = re.search(r"public X11 display (:\d+)", self.log("gnome-shell"))
        if not number:
            raise RuntimeError(f"no X server:\n{self.logs()}")
        self.display = number[1]
        displays = {
            "WAYLAND_DISPLAY": "wayland-0",
            "DISPLAY": self.display,
            "XAUTHORITY": str(next(runtime.glob(".mutter-Xwaylandauth.*"))),
        }
        self.environment |= displays
        bus = MessageBus(self.bus.address)
        bus.call(*_DAEMON, "UpdateActivationEnvironment", "(a{ss})", displays)
        bus.close()
        # The tests' own connections to the X server.
        environ["XAUTHORITY"] = displays["XAUTHORITY"]
        self.windows = Windows(self.display)
        self.shell.follow_x_server(self.display)
        undo.callback(self.windows.close)

    def _wait_for_key_bindings(self) -> None:
        bus = MessageBus(self.bus.address)
        name = "org.gnome.SettingsDaemon.MediaKeys"
        wait_until(lambda: bus.has_owner(name), "the daemon of key bindings", interval=0.05)
        bus.close()
