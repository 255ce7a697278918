# SPDX-License-Identifier: MIT
"""The hand on the pointer, which presses on what a program shows."""

from ..accessible import Accessible
from .hands import Hands


class Pointer:
    """Presses where programs say that their parts are."""

    def __init__(self, hands: Hands) -> None:
        self._hands = hands

    def click(self, target: Accessible) -> None:
        """Presses and releases in the middle of something that shows."""
        left, top, width, height = target.extents
        self._hands.click(left + width / 2, top + height / 2)
