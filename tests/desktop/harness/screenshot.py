# SPDX-License-Identifier: MIT
"""Pictures of what is on the screen, as PNG files."""

import struct
import zlib
from pathlib import Path

from Xlib import X
from Xlib.display import Display

from .session import Session
from .waiting import wait_until

_BYTES_PER_PIXEL = 4  # a depth of 24 is padded to 32 bits, blue first

_FLAT = 16  # a picture with fewer colours than this has not been painted yet


class Picture:
    """The pixels of a window, with whatever covers it."""

    def __init__(self, display: Display, window: int) -> None:
        root = display.screen().root
        target = display.create_resource_object("window", window)
        geometry = target.get_geometry()
        place = root.translate_coords(target, 0, 0)
        screen = display.screen()
        self._width = min(geometry.width, screen.width_in_pixels - place.x)
        self._height = min(geometry.height, screen.height_in_pixels - place.y)
        self._pixels: bytes = root.get_image(
            place.x, place.y, self._width, self._height, X.ZPixmap, 0xFFFFFFFF
        ).data

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Picture) and self._pixels == other._pixels

    def is_painted(self) -> bool:
        """Whether there is more than a background."""
        return len(set(memoryview(self._pixels).cast("I"))) >= _FLAT

    def has(self, color: int) -> bool:
        """Whether any pixel has a colour, as 0xRRGGBB."""
        return any(pixel & 0xFFFFFF == color for pixel in memoryview(self._pixels).cast("I"))

    def color(self, x: int, y: int) -> int:
        """The pixel at a place, as 0xRRGGBB."""
        start = _BYTES_PER_PIXEL * (y * self._width + x)
        return int.from_bytes(self._pixels[start : start + 3], "little")

    def write(self, file: Path) -> None:
        """Writes the picture as a PNG file (ISO/IEC 15948)."""
        header = struct.pack(">IIBBBBB", self._width, self._height, 8, 2, 0, 0, 0)
        file.write_bytes(
            b"\x89PNG\r\n\x1a\n"
            + _chunk(b"IHDR", header)
            + _chunk(b"IDAT", zlib.compress(self._scanlines()))
            + _chunk(b"IEND", b"")
        )

    def _scanlines(self) -> bytes:
        rgb = bytearray(3 * self._width * self._height)
        for channel in range(3):
            rgb[channel::3] = self._pixels[2 - channel :: _BYTES_PER_PIXEL]
        length = 3 * self._width
        no_filter = b"\0"
        return b"".join(
            no_filter + rgb[start : start + length] for start in range(0, len(rgb), length)
        )


def take(session: Session, window: int, file: Path) -> None:
    """Writes a picture of a window once it is painted and has come to rest."""
    display = Display(session.display)
    try:
        wait_until(lambda: _at_rest(display, window), "a painted window", interval=0.1).write(file)
    finally:
        display.close()


def _at_rest(display: Display, window: int) -> Picture | None:
    first, second = Picture(display, window), Picture(display, window)
    return second if first == second and second.is_painted() else None


def _chunk(kind: bytes, data: bytes) -> bytes:
    checksum = zlib.crc32(kind + data)
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", checksum)
