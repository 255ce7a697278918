# SPDX-License-Identifier: MIT
"""The memory of a process as a core dump would have it."""

from collections.abc import Iterator
from pathlib import Path

_PIECE = 1 << 24

# What sanitizers know of all addresses is larger, and has no bytes of the program's.
_LARGEST = 1 << 30


def occurrences(pid: int, secret: bytes) -> int:
    """How often the bytes stand anywhere in what the process can write."""
    folder = Path("/proc") / str(pid)
    with (folder / "mem").open("rb", buffering=0) as memory:
        return sum(
            piece.count(secret)
            for begin, end in _writable_parts(folder)
            for piece in _pieces(memory, begin, end, len(secret) - 1)
        )


def _writable_parts(folder: Path) -> Iterator[tuple[int, int]]:
    for line in (folder / "maps").read_text().splitlines():
        addresses, rights, *_ = line.split()
        begin, end = (int(address, 16) for address in addresses.split("-"))
        if rights.startswith("rw") and end - begin < _LARGEST:
            yield begin, end


def _pieces(memory, begin: int, end: int, overlap: int) -> Iterator[bytes]:  # type: ignore[no-untyped-def]
    """Bounded ones; what stands across two of them is whole in the second."""
    rest = b""
    while begin < end:
        try:
            memory.seek(begin)
            piece = memory.read(min(_PIECE, end - begin))
        except OSError:
            return  # a device's
        if not piece:
            return
        yield rest + piece
        rest = piece[len(piece) - overlap :]
        begin += len(piece)
