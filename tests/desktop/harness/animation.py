# SPDX-License-Identifier: MIT
"""Animated pictures (APNG), of which each frame holds only what changed."""

import struct
import zlib
from dataclasses import dataclass
from pathlib import Path

from .screenshot import Picture, png_chunk, png_header

_ENDLESS = 0
_KEEP = 0  # what a frame leaves behind is what the next one is drawn upon
_REPLACE = 0


@dataclass(frozen=True)
class _Frame:
    left: int
    top: int
    width: int
    height: int
    data: bytes
    milliseconds: int


class Animation:
    """Frames of one size, in the order in which they are shown."""

    def __init__(self) -> None:
        self._frames: list[_Frame] = []
        self._last: Picture | None = None

    def add(self, picture: Picture, milliseconds: int) -> None:
        """Shows a picture for so long after what was added before."""
        if self._last is None:
            area = (0, 0, picture.width, picture.height)
        else:
            area = picture.difference(self._last) or (0, 0, 1, 1)
        data = zlib.compress(picture.scanlines(*area), 9)
        self._frames.append(_Frame(*area, data, milliseconds))
        self._last = picture

    def write(self, file: Path) -> None:
        """Writes the animation; programs that know no APNG show its first frame."""
        first = self._frames[0]
        chunks = [
            png_header(first.width, first.height),
            png_chunk(b"acTL", struct.pack(">II", len(self._frames), _ENDLESS)),
        ]
        number = 0
        for frame in self._frames:
            chunks.append(png_chunk(b"fcTL", _control(number, frame)))
            number += 1
            if frame is first:
                chunks.append(png_chunk(b"IDAT", frame.data))
            else:
                chunks.append(png_chunk(b"fdAT", struct.pack(">I", number) + frame.data))
                number += 1
        chunks.append(png_chunk(b"IEND", b""))
        file.write_bytes(b"".join(chunks))


def _control(number: int, frame: _Frame) -> bytes:
    return struct.pack(
        ">IIIIIHHBB",
        number,
        frame.width,
        frame.height,
        frame.left,
        frame.top,
        frame.milliseconds,
        1000,
        _KEEP,
        _REPLACE,
    )
