# SPDX-License-Identifier: MIT
"""A bar with a tray, as users of sway have it."""

import subprocess
from pathlib import Path

from ..message_bus import BusError, MessageBus
from ..tray import WATCHER, WATCHER_PATH
from ..waiting import wait_until
from .session import SIZE, SwaySession

_HEIGHT = 32
_ICON = 24

_CONFIGURATION = f"""\
{{"layer": "top", "height": {_HEIGHT}, "modules-right": ["tray"],
  "tray": {{"icon-size": {_ICON}, "spacing": 0}}}}
"""
_STYLE = "* { all: unset; } window#waybar { background-color: black; }\n"

_PROPERTIES = "org.freedesktop.DBus.Properties"


class Waybar:
    """A bar at the upper edge whose tray is at its right end."""

    def __init__(self, session: SwaySession) -> None:
        self._session = session
        self._process: subprocess.Popen[bytes] | None = None
        self._configuration = session.root / "waybar.json"
        self._configuration.write_text(_CONFIGURATION)
        self._style = session.root / "waybar.css"
        self._style.write_text(_STYLE)

    def start(self) -> None:
        """Starts the bar and waits until programs can put their icons there."""
        files = ["--config", str(self._configuration), "--style", str(self._style)]
        self._process = self._session.start(["waybar", *files])
        wait_until(self._has_host, "the tray's host of items", interval=0.05)

    def place(self) -> tuple[int, int]:
        """The middle of the only icon."""
        return SIZE[0] - _ICON // 2, _HEIGHT // 2

    def wait_icon(self) -> None:
        """Waits until the place of the icon shows one."""
        wait_until(lambda: len(self._colors()) > 4, "the icon in the tray", interval=0.1)

    def _colors(self) -> set[bytes]:
        file: Path = self._session.root / "tray.ppm"
        area = f"{SIZE[0] - _ICON},{(_HEIGHT - _ICON) // 2} {_ICON}x{_ICON}"
        self._session.run(["grim", "-t", "ppm", "-g", area, str(file)])
        pixels = file.read_bytes()[-3 * _ICON * _ICON :]
        return {pixels[start : start + 3] for start in range(0, len(pixels), 3)}

    def _has_host(self) -> bool:
        bus = MessageBus(self._session.bus.address)
        question = (WATCHER, "IsStatusNotifierHostRegistered")
        try:
            answer = bus.call(WATCHER, WATCHER_PATH, _PROPERTIES, "Get", "(ss)", *question)
            return bool(answer[0])
        except BusError:
            return False  # no watcher
        finally:
            bus.close()
