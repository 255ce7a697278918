# SPDX-License-Identifier: MIT
"""A desktop's settings manager: tells programs of its theme and font on the X server."""

import struct

from Xlib import X
from Xlib.display import Display


class SettingsManager:
    """Owns the selection of XSETTINGS with the settings that a test names."""

    def __init__(self, display: str, settings: dict[str, str | int]) -> None:
        self._display = Display(display)
        self._window = self._display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self._settings: dict[str, str | int] = {}
        self.set(settings)
        selection = self._display.intern_atom("_XSETTINGS_S0")
        self._window.set_selection_owner(selection, X.CurrentTime)
        self._display.sync()

    def close(self) -> None:
        """Ends it; nobody owns the selection afterwards."""
        self._display.close()

    def set(self, settings: dict[str, str | int]) -> None:
        """Adds to the settings, or changes some."""
        self._settings |= settings
        atom = self._display.intern_atom("_XSETTINGS_SETTINGS")
        body = b"".join(_setting(name, value) for name, value in self._settings.items())
        header = struct.pack("=BxxxII", _BYTE_ORDER, 0, len(self._settings))
        self._window.change_property(atom, atom, 8, header + body)
        self._display.sync()


_BYTE_ORDER = struct.pack("=H", 1)[0] ^ 1


def _padded(text: bytes) -> bytes:
    return text + bytes(-len(text) % 4)


def _setting(name: str, value: str | int) -> bytes:
    head = struct.pack("=BxH", int(isinstance(value, str)), len(name)) + _padded(name.encode())
    head += struct.pack("=I", 0)
    if isinstance(value, int):
        return head + struct.pack("=i", value)
    encoded = value.encode()
    return head + struct.pack("=I", len(encoded)) + _padded(encoded)
