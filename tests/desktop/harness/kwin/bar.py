# SPDX-License-Identifier: MIT
"""A bar with a tray under KWin."""

from ..sway.waybar import Waybar
from ..waiting import wait_until


class Bar(Waybar):
    """The same bar, of which KWin lets nobody take a picture."""

    def wait_icon(self) -> None:
        """Waits until the bar says that it shows one."""
        assert self._process is not None
        tree = self._session.accessibility.application(self._process.pid)
        wait_until(
            lambda: any(found.role in ("icon", "image") for found in tree.showing()),
            "the icon in the tray",
            interval=0.05,
        )
