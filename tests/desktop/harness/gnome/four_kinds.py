# SPDX-License-Identifier: MIT
"""What a program copies that offers one thing in four kinds."""

from ..offer import Offer

FOUR_KINDS = [
    Offer("text/plain;charset=utf-8", "had before é".encode()),
    Offer("text/html", b"<b>had before</b>"),
    Offer("application/x-quorvane-test", b"\x00\x01\xff"),
    Offer("image/png", bytes(range(256)) * 12_000),
]
