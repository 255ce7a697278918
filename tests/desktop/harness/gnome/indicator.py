# SPDX-License-Identifier: MIT
"""Quorvane's icon in GNOME's bar, which an extension shows there."""

from pathlib import Path

from gi.repository import GdkPixbuf

from ..waiting import wait_until
from .session import GnomeSession

EXTENSION = "ubuntu-appindicators@ubuntu.com"
"""The extension, as Debian packages it."""

_ITEM = (
    "Main.panel.statusArea["
    "Object.keys(Main.panel.statusArea).find(key => key.startsWith('appindicator'))]"
)
_ENTRIES = f"{_ITEM}.menu._getMenuItems().filter(entry => entry.visible)"


class Indicator:
    """The only icon that a program has put into the bar."""

    def __init__(self, session: GnomeSession) -> None:
        self._session = session
        self._shell = session.shell
        wait_until(self._is_there, "the icon in the bar", interval=0.05)

    def click(self) -> None:
        """A single click with the left button."""
        self._session.hands.click(*self._shell.middle_of(_ITEM))

    def menu(self) -> list[str]:
        """The titles in the open menu; waits until it is open."""
        wait_until(lambda: self._shell.evaluate(f"{_ITEM}.menu.isOpen"), "the icon's menu")
        titles = self._shell.evaluate(f"{_ENTRIES}.map(entry => entry.label?.text ?? '')")
        return [title for title in titles if title]

    def choose(self, title: str) -> None:
        """Clicks an entry of the open menu."""
        entry = f"{_ENTRIES}.find(entry => entry.label?.text === '{title}')"
        self._session.hands.click(*self._shell.middle_of(entry))

    def brightness(self) -> int:
        """Of the brightest of its pixels, from 0 to 255."""
        x, y = (round(place) for place in self._shell.middle_of(_ITEM))
        file: Path = self._session.root / "indicator.png"
        self._shell.screenshot(file)
        half = 8
        picture = GdkPixbuf.Pixbuf.new_from_file(str(file))
        part = picture.new_subpixbuf(x - half, y - half, 2 * half, 2 * half)
        pixels, stride = part.get_pixels(), part.get_rowstride()
        channels = part.get_n_channels()
        return max(
            min(pixels[row * stride + column * channels :][:3])
            for row in range(2 * half)
            for column in range(2 * half)
        )

    def _is_there(self) -> bool:
        width = f"({_ITEM}?.get_transformed_size() ?? [0])[0]"
        return (self._shell.evaluate(width) or 0) > 0
