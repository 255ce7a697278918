# SPDX-License-Identifier: MIT
"""A panel with a system tray, as Xfce has it."""

from .message_bus import MessageBus
from .session import Session
from .waiting import wait_until

_WATCHER = "org.kde.StatusNotifierWatcher"

# With a ready configuration the panel does not open its first-run dialog.
_CONFIGURATION = """\
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=10;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="28"/>
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


def start(session: Session) -> None:
    """Starts the panel and waits until programs can put their icons there."""
    channels = session.directory("config") / "xfce4" / "xfconf" / "xfce-perchannel-xml"
    channels.mkdir(parents=True)
    (channels / "xfce4-panel.xml").write_text(_CONFIGURATION)
    session.start(["xfce4-panel", "--disable-wm-check"])
    bus = MessageBus(session.environment["DBUS_SESSION_BUS_ADDRESS"])
    wait_until(lambda: bus.has_owner(_WATCHER), "the tray")
    bus.close()
