# SPDX-License-Identifier: MIT
"""What is on the screen, to be compared with what was there before."""

import os

from .session import SIZE, SwaySession
from .windows import Frame

_BYTES = 3  # of a pixel


class ScreenPicture:
    """The whole screen at a moment."""

    def __init__(self, session: SwaySession) -> None:
        file = session.root / "screen.ppm"
        session.run(["grim", "-t", "ppm", str(file)])
        width, height = SIZE
        pixels = file.read_bytes()[-width * height * _BYTES :]
        length = width * _BYTES
        self._rows = [pixels[start : start + length] for start in range(0, len(pixels), length)]

    def changed_from(self, before: "ScreenPicture") -> Frame | None:
        """What all differences lie in, if there are any."""
        pairs = list(enumerate(zip(self._rows, before._rows, strict=True)))
        changed = [(y, now, then) for y, (now, then) in pairs if now != then]
        if not changed:
            return None
        top, bottom = changed[0][0], changed[-1][0] + 1
        left = min(_common(now, then) for _, now, then in changed)
        right = SIZE[0] - min(_common(now[::-1], then[::-1]) for _, now, then in changed)
        return left, top, right - left, bottom - top


def _common(one: bytes, other: bytes) -> int:
    """How many pixels both begin with."""
    return len(os.path.commonprefix([one, other])) // _BYTES
