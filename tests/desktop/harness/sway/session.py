# SPDX-License-Identifier: MIT
"""A whole sway session without a screen."""

from contextlib import ExitStack
from pathlib import Path

from ..accessible import Accessibility
from ..private_session import PrivateSession
from ..session_bus import SessionBus
from ..waiting import wait_until
from .windows import SwayWindows

SIZE = (1280, 800)
"""The screen, in pixels."""

# What a user without a screen, a graphics card and a seat of the machine has.
_HEADLESS = {
    "WLR_BACKENDS": "headless",
    "WLR_LIBINPUT_NO_DEVICES": "1",
    "WLR_RENDERER": "pixman",
    "LIBSEAT_BACKEND": "noop",
}

# The last line is what a user writes into the file to have the shortcut.
_CONFIGURATION = """\
output * resolution {width}x{height} position 0 0 scale {scale}
focus_follows_mouse no
exec printenv DISPLAY >{displays} && printenv WAYLAND_DISPLAY >>{displays}
bindsym Ctrl+Shift+Mod4+d exec gdbus call --session --dest org.quorvane.Quorvane \
--object-path /org/quorvane/Quorvane --method org.freedesktop.Application.ActivateAction \
toggle [] {{}}
"""


class SwaySession(PrivateSession):
    """sway with XWayland and a bus; to be used inside of harness.sandbox, for it refuses root."""

    windows: SwayWindows  # type: ignore[assignment]

    def __init__(self, scale: float = 1) -> None:
        super().__init__()
        self._scale = scale

    @property
    def socket(self) -> Path:
        """Where the compositor listens."""
        return self.directory("run") / self.environment["WAYLAND_DISPLAY"]

    def kill_compositor(self) -> None:
        """Ends sway as a crash would."""
        self._compositor.kill()
        self._compositor.wait()

    def screenshot(self, file: Path) -> None:
        """Writes a picture of the whole screen."""
        self.run(["grim", str(file)])

    def _begin(self, undo: ExitStack) -> None:
        # No settings daemon: GTK programs start at once.
        self.environment["GSETTINGS_BACKEND"] = "memory"
        self.bus = SessionBus(self._processes, self.environment.copy(), self.directory("bus"))
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        self._start_compositor()
        self.windows = SwayWindows(Path(self.environment["SWAYSOCK"]), self.display)
        undo.callback(self.windows.close)
        self.accessibility = Accessibility(self.bus.address)
        undo.callback(self.accessibility.close)

    def _start_compositor(self) -> None:
        displays = self.root / "displays"
        configuration = self.root / "sway.conf"
        width, height = SIZE
        configuration.write_text(
            _CONFIGURATION.format(
                width=width, height=height, scale=self._scale, displays=displays
            )
        )
        self.environment |= {
            "SWAYSOCK": str(self.directory("run") / "sway.socket"),
            "XDG_CURRENT_DESKTOP": "sway",
            "XDG_SESSION_TYPE": "wayland",
        }
        self._compositor = self.start(["sway", "--config", str(configuration)], _HEADLESS)
        names = wait_until(lambda: self._names(displays), "sway")
        self.display = names[0]
        self.environment |= {"DISPLAY": names[0], "WAYLAND_DISPLAY": names[1]}

    def _names(self, file: Path) -> list[str] | None:
        if self._compositor.poll() is not None:
            raise RuntimeError(f"no sway:\n{self.logs()}")
        names = file.read_text().split() if file.exists() else []
        return names if len(names) == 2 else None
