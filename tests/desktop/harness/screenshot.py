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
        self.width = min(geometry.width, screen.width_in_pixels - place.x)
        self.height = min(geometry.height, screen.height_in_pixels - place.y)
        self._pixels: bytes = root.get_image(
            place.x, place.y, self.width, self.height, X.ZPixmap, 0xFFFFFFFF
        ).data

    def cropped(self, left: int, top: int, width: int, height: int) -> "Picture":
        """A part of the picture, which has to be inside of it."""
        part = object.__new__(Picture)
        part.width, part.height = width, height
        part._pixels = b"".join(
            self._row(y)[_BYTES_PER_PIXEL * left : _BYTES_PER_PIXEL * (left + width)]
            for y in range(top, top + height)
        )
        return part

    def difference(self, other: "Picture") -> tuple[int, int, int, int] | None:
        """Left, top, width and height of what is not as in another picture of the same size."""
        rows = [y for y in range(self.height) if self._row(y) != other._row(y)]
        if not rows:
            return None
        columns = [
            x
            for x in range(self.width)
            if any(self.color(x, y) != other.color(x, y) for y in rows)
        ]
        left, right = columns[0], columns[-1]
        return left, rows[0], right - left + 1, rows[-1] - rows[0] + 1

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
        start = _BYTES_PER_PIXEL * (y * self.width + x)
        return int.from_bytes(self._pixels[start : start + 3], "little")

    def write(self, file: Path) -> None:
        """Writes the picture as a PNG file (ISO/IEC 15948)."""
        data = zlib.compress(self.scanlines(0, 0, self.width, self.height))
        file.write_bytes(
            png_header(self.width, self.height)
            + png_chunk(b"IDAT", data)
            + png_chunk(b"IEND", b"")
        )

    def scanlines(self, left: int, top: int, width: int, height: int) -> bytes:
        """A part of the pixels as PNG has them: red first, each line after its filter, none."""
        no_filter = b"\0"
        return b"".join(
            no_filter + self._rgb(left, y, width) for y in range(top, top + height)
        )

    def _rgb(self, left: int, y: int, width: int) -> bytes:
        part = self._row(y)[_BYTES_PER_PIXEL * left : _BYTES_PER_PIXEL * (left + width)]
        rgb = bytearray(3 * width)
        for channel in range(3):
            rgb[channel::3] = part[2 - channel :: _BYTES_PER_PIXEL]
        return bytes(rgb)

    def _row(self, y: int) -> bytes:
        length = _BYTES_PER_PIXEL * self.width
        return self._pixels[y * length : (y + 1) * length]


def take(session: Session, window: int, file: Path) -> None:
    """Writes a picture of a window once it is painted and has come to rest."""
    at_rest(session, window).write(file)


def at_rest(session: Session, window: int) -> Picture:
    """A picture of a window once it is painted and has come to rest."""
    display = Display(session.display)
    try:
        return wait_until(lambda: _at_rest(display, window), "a painted window", interval=0.1)
    finally:
        display.close()


def _at_rest(display: Display, window: int) -> Picture | None:
    first, second = Picture(display, window), Picture(display, window)
    return second if first == second and second.is_painted() else None


def png_header(width: int, height: int) -> bytes:
    """How a PNG file of eight bits a colour begins."""
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + png_chunk(b"IHDR", header)


def png_chunk(kind: bytes, data: bytes) -> bytes:
    """A piece of a PNG file."""
    checksum = zlib.crc32(kind + data)
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", checksum)
