# SPDX-License-Identifier: MIT
"""One form of what a selection holds."""

import base64
from dataclasses import dataclass


@dataclass(frozen=True)
class Offer:
    """The data that an owner gives for one target, as they stand in the X property."""

    target: str
    data: bytes
    type: str = ""
    """The property's type; the target's own name where it is left empty."""
    units: int = 8
    """Bits to a unit: 8, 16 or 32, the units in the machine's byte order."""

    def __post_init__(self) -> None:
        if not self.type:
            object.__setattr__(self, "type", self.target)

    def to_json(self) -> dict[str, str | int]:
        """For the way into another process."""
        encoded = base64.b64encode(self.data).decode()
        return {"target": self.target, "type": self.type, "units": self.units, "data": encoded}

    @classmethod
    def from_json(cls, record: dict[str, str]) -> "Offer":
        """The inverse of `to_json`."""
        data = base64.b64decode(record["data"])
        return cls(record["target"], data, record["type"], int(record["units"]))


def plain_text(text: str) -> list[Offer]:
    """A text as toolkits offer it."""
    data = text.encode()
    return [
        Offer("UTF8_STRING", data),
        Offer("text/plain;charset=utf-8", data),
        Offer("text/plain", data),
    ]
