# SPDX-License-Identifier: MIT
"""Keyboard layouts as a user sets them, and what the key where US keyboards have D types."""

import re
from dataclasses import dataclass

from harness.keys import Key
from harness.session import Session

from .hands import Hands

_LETTERS = {"us(dvorak)": "e", "us(colemak)": "s", "us,ru:2": "в", "us,gr:2": "δ"}
_LETTERS |= {"ru": "в", "gr": "δ"}
_MOVED = {
    "us+ctrl:swapcaps": {Key.CONTROL: Key.CAPS_LOCK},
    "us+altwin:swap_alt_win": {Key.ALT: Key.SUPER, Key.SUPER: Key.ALT},
}
_NAME = re.compile(r"(?P<layout>[a-z,]+)(\((?P<variant>\w+)\))?(:(?P<group>\d))?(\+(?P<option>.*))?")


@dataclass(frozen=True)
class Layout:
    """One value of the axis."""

    name: str

    @property
    def letter(self) -> str:
        """What the D key types."""
        return _LETTERS.get(self.name, "d")

    def apply(self, session: Session, hands: Hands) -> None:
        """Gives every keyboard the layout."""
        session.run(["setxkbmap", "-option", "", *self._arguments()])
        hands.find(_MOVED.get(self.name, {}))
        hands.lock_group(self.group)

    def apply_to_all_but(self, session: Session, hands: Hands) -> None:
        """Gives every keyboard the layout, and the user's own the default one, as a new one has."""
        self.apply(session, hands)
        default = ["-layout", "us", "-variant", ""]
        session.run(["setxkbmap", "-device", str(hands.device), "-option", "", *default])
        hands.find({})

    @property
    def group(self) -> int:
        """Which of its layouts is in use; 0 is the first."""
        match = _NAME.fullmatch(self.name)
        return int(match["group"]) - 1 if match and match["group"] else 0

    def _arguments(self) -> list[str]:
        match = _NAME.fullmatch(self.name)
        assert match, self.name
        option = ["-option", match["option"]] if match["option"] else []
        return ["-layout", match["layout"], "-variant", match["variant"] or "", *option]
