# SPDX-License-Identifier: MIT
"""A panel with a system tray, as Xfce has it: a host for icons of both protocols."""

import subprocess

from Xlib import X
from Xlib.display import Display

from .message_bus import BusError, MessageBus
from .screenshot import Picture
from .session import Session
from .waiting import wait_until

WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_PATH = "/StatusNotifierWatcher"

_PROPERTIES = "org.freedesktop.DBus.Properties"

_SIZE = 28  # points; the tray is at the lower right corner, and so is its only icon

# With a ready configuration the panel does not open its first-run dialog.
_CONFIGURATION = """\
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="{dark}"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=10;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="{size}"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
        <value type="int" value="3"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="tasklist"/>
    <property name="plugin-2" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-3" type="string" value="systray"/>
  </property>
</channel>
"""


class Tray:
    """A panel that can be started, ended and started again.

    It is a host of StatusNotifierItems on the bus that it is started on, and of XEmbed icons on the
    display: to a program on another bus it offers XEmbed alone.
    """

    def __init__(self, session: Session, bus: str | None = None, dark: bool = False) -> None:
        self._session = session
        self._bus = bus or session.environment["DBUS_SESSION_BUS_ADDRESS"]
        self._process: subprocess.Popen[bytes] | None = None
        channels = session.directory("config") / "xfce4" / "xfconf" / "xfce-perchannel-xml"
        channels.mkdir(parents=True, exist_ok=True)
        # The session's own theme would beat the dark variant that the panel asks for.
        self._theme = {"GTK_THEME": ""} if dark else {}
        configuration = _CONFIGURATION.format(dark=str(dark).lower(), size=_SIZE)
        (channels / "xfce4-panel.xml").write_text(configuration)

    def start(self) -> None:
        """Starts the panel and waits until programs can put their icons there."""
        self._process = self._session.start(
            ["xfce4-panel", "--disable-wm-check"],
            {"DBUS_SESSION_BUS_ADDRESS": self._bus} | self._theme,
        )
        wait_until(self._has_item_host, "the tray's host of items")
        wait_until(self._has_embedding_host, "the tray's host of embedded icons")

    def stop(self) -> None:
        """Ends the panel, as a crash or a session's end would."""
        assert self._process is not None
        self._session.stop(self._process)
        wait_until(lambda: not self._has_item_host(), "the end of the tray")

    def place(self) -> tuple[int, int]:
        """The middle of the only icon."""
        display = Display(self._session.display)
        screen = display.screen()
        display.close()
        return (
            screen.width_in_pixels - _SIZE // 2,
            screen.height_in_pixels - _SIZE // 2,
        )

    def wait_icon(self) -> None:
        """Waits until the place of the icon shows one."""
        wait_until(self._shows_icon, "the icon in the tray", interval=0.05)

    def wait_no_icon(self) -> None:
        """Waits until it shows none."""
        wait_until(lambda: not self._shows_icon(), "the tray without the icon", interval=0.05)

    def shades(self) -> list[int]:
        """How bright the pixels at the icon's place are, from 0 to 255, the darkest first."""
        return sorted(
            (299 * (color >> 16) + 587 * (color >> 8 & 0xFF) + 114 * (color & 0xFF)) // 1000
            for color in self._colors()
        )

    def _shows_icon(self) -> bool:
        # An empty panel has a border line and a background, in a few shades.
        return len(self._colors()) > 4

    def _colors(self) -> set[int]:
        x, y = self.place()
        display = Display(self._session.display)
        try:
            screen = Picture(display, display.screen().root.id)
        finally:
            display.close()
        half = _SIZE // 4
        return {
            screen.color(x + across, y + down)
            for across in range(-half, half)
            for down in range(-half, half)
        }

    def _has_item_host(self) -> bool:
        bus = MessageBus(self._bus)
        try:
            return bool(
                bus.call(
                    WATCHER,
                    WATCHER_PATH,
                    _PROPERTIES,
                    "Get",
                    "(ss)",
                    WATCHER,
                    "IsStatusNotifierHostRegistered",
                )[0]
            )
        except BusError:
            return False  # no watcher
        finally:
            bus.close()

    def _has_embedding_host(self) -> bool:
        display = Display(self._session.display)
        try:
            selection = display.intern_atom("_NET_SYSTEM_TRAY_S0")
            return display.get_selection_owner(selection) != X.NONE
        finally:
            display.close()


def start(session: Session) -> None:
    """Starts a panel for the length of the session."""
    Tray(session).start()
