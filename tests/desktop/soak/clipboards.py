# SPDX-License-Identifier: MIT
"""What the user's clipboard holds before an insertion, and what it has to hold afterwards."""

import os
import struct
from collections.abc import Callable, Sequence
from dataclasses import dataclass, field

from harness.offer import Offer, plain_text

_LARGE = 60_000_000


@dataclass(frozen=True)
class Contents:
    """The clipboard of another program."""

    offers: Sequence[Offer] = ()
    lost: Sequence[str] = ()
    """Targets that are offered and cannot be had."""
    trouble: dict[str, object] = field(default_factory=dict)
    """How the owner behaves, for `troubled_owner`."""
    large: int = 0
    """Bytes of one more target, which may be left behind but never cut."""
    is_owned: bool = True

    def expected(self) -> list[Offer]:
        """What has to be there again, but for the large one."""
        return [offer for offer in self.offers if offer.target not in self.lost]


def _text() -> Contents:
    return Contents(plain_text("what the user had copied: äöü Ж 日本"))


def _files() -> Contents:
    files = b"file:///home/user/a%20b.txt\r\nfile:///home/user/c.txt\r\n"
    return Contents(
        [
            Offer("x-special/gnome-copied-files", b"copy\nfile:///home/user/a%20b.txt"),
            Offer("text/uri-list", files),
            *plain_text("/home/user/a b.txt\n/home/user/c.txt"),
            Offer("application/x-kde-cutselection", b"0"),
        ]
    )


def _image() -> Contents:
    picture = os.urandom(90_000)
    sizes = {"image/bmp": 200_000, "image/x-icon": 4_286, "image/jpeg": 30_001}
    sizes |= {"image/tiff": 120_000, "image/webp": 20_000, "image/gif": 15_000}
    return Contents(
        [
            Offer("image/png", picture),
            *(Offer(target, os.urandom(size)) for target, size in sizes.items()),
            Offer("application/x-qt-image", picture),
        ]
    )


def _many_targets() -> Contents:
    return Contents(
        [*plain_text("one of forty")]
        + [Offer(f"application/x-soak-{number}", os.urandom(100 + number)) for number in range(37)]
    )


def _format_32() -> Contents:
    words = struct.pack("=5I", 0, 1, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF)
    return Contents(
        [
            Offer("x-test/words", words, "INTEGER", 32),
            Offer("x-test/halves", struct.pack("=3H", 1, 0x8000, 0xFFFF), "CARDINAL", 16),
            *plain_text("beside them"),
        ]
    )


def _hangs() -> Contents:
    offers = plain_text("never said")
    return Contents(offers, [offer.target for offer in offers], {"silent": ["TARGETS"]})


def _dies() -> Contents:
    return Contents(
        [*plain_text("said in time"), Offer("image/png", b"never said")],
        ["image/png"],
        {"deadly": ["image/png"]},
    )


def _slow() -> Contents:
    return Contents([*plain_text("slowly"), Offer("image/png", os.urandom(999))], (), {"pause": 0.05})


def _refuses() -> Contents:
    refused = ["image/png", "text/html", "application/x-soak"]
    offers = [*plain_text("not all"), *(Offer(target, b"refused") for target in refused)]
    return Contents(offers, refused, {"refused": refused})


CONTENTS: dict[str, Callable[[], Contents]] = {
    "text": _text,
    "nothing": lambda: Contents(is_owned=False),
    "files": _files,
    "image": _image,
    "large": lambda: Contents(plain_text("beside sixty megabytes"), large=_LARGE),
    "many-targets": _many_targets,
    "format-32": _format_32,
    "hangs": _hangs,
    "dies": _dies,
    "slow": _slow,
    "refuses": _refuses,
    "parcellite": _text,
    "copyq": _text,
}
"""By the value of the axis; the program's own clipboard is made by the program."""
