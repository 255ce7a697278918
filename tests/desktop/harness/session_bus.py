# SPDX-License-Identifier: MIT
"""A session bus that starts the few services a test needs, and no others."""

import os
import subprocess
from collections.abc import Mapping, Sequence
from pathlib import Path

from .processes import Processes

_SERVICES = Path("/usr/share/dbus-1/services")

# Portals and the like start by themselves on a full bus and fall over without a desktop. The
# accessibility bus is how the tests see; xfwm4 and xfce4-panel do not run without their settings.
_ACTIVATABLE = ("org.a11y.Bus.service", "org.xfce.Xfconf.service")

_CONFIGURATION = """\
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


class SessionBus:
    """A bus of a session, its files in a directory of its own."""

    def __init__(
        self,
        processes: Processes,
        environment: Mapping[str, str],
        directory: Path,
        services_offered: Sequence[str] = _ACTIVATABLE,
    ) -> None:
        """`environment` holds DISPLAY already: the services inherit it.

        `services_offered` are files of the system's, of services that start when they are called.
        """
        self._processes = processes
        self._environment = environment
        self._configuration = directory / "session.conf"
        services = directory / "services"
        services.mkdir()
        for name in services_offered:
            if (_SERVICES / name).exists():
                (services / name).symlink_to(_SERVICES / name)
        self._configuration.write_text(
            _CONFIGURATION.format(socket=directory / "socket", services=services)
        )
        self.process, self.address = self._start()

    def restart(self) -> None:
        """Ends the daemon as a crash would, and starts another one in its place."""
        self.process.kill()
        self.process.wait()
        self.process, self.address = self._start()

    def _start(self) -> tuple[subprocess.Popen[bytes], str]:
        reading, writing = os.pipe()
        try:
            process = self._processes.start(
                ["dbus-daemon", f"--config-file={self._configuration}", "--nofork"]
                + [f"--print-address={writing}"],
                self._environment,
                pass_fds=[writing],
            )
        finally:
            os.close(writing)
        with os.fdopen(reading) as announcement:
            return process, announcement.readline().strip()
