# SPDX-License-Identifier: MIT
"""Chooses cases so that rare meetings of two values come early."""

import random
from collections import Counter
from collections.abc import Mapping, Sequence
from itertools import combinations

from .axes import AXES, Case, is_possible

_CANDIDATES = 40

# How much a meeting that has not come about yet counts for.
_WEIGHTS = {("target", "clipboard"): 4.0, ("target", "layout"): 4.0}
_VALUE_WEIGHT = 8.0

# The ordinary value comes as often as all the others together where a rare one ends or hides much.
_MOSTLY_ORDINARY = ("window", "keys", "change")


class Picker:
    """Draws cases from a seed; the same seed and the same choices give the same cases."""

    def __init__(self, seed: int, choices: Mapping[str, Sequence[str]]) -> None:
        self._random = random.Random(seed)
        self._choices = {axis: tuple(choices.get(axis, AXES[axis])) for axis in AXES}
        self._seen: Counter[tuple[tuple[str, str], ...]] = Counter()

    def stretch(self, number: int, axis: str) -> str:
        """The value that all cases of the stretch of this number share."""
        choices = self._choices[axis]
        return choices[number % len(choices)]

    def pick(self, shared: Mapping[str, str]) -> Case:
        """The one of many random cases that brings most that was not seen together."""
        candidates = [self._draw(shared) for _ in range(_CANDIDATES)]
        best = max(candidates, key=self._worth)
        self._seen.update(_parts(best))
        return Case(**best)

    def _draw(self, shared: Mapping[str, str]) -> dict[str, str]:
        while True:
            values = {axis: self._draw_value(axis) for axis in AXES} | dict(shared)
            if is_possible(values):
                return values

    def _draw_value(self, axis: str) -> str:
        choices = self._choices[axis]
        if axis in _MOSTLY_ORDINARY and self._random.random() < 0.5:
            return choices[0]
        return self._random.choice(choices)

    def _worth(self, values: dict[str, str]) -> float:
        return sum(_weight(part) / (1 + self._seen[part]) for part in _parts(values))


def _parts(values: dict[str, str]) -> list[tuple[tuple[str, str], ...]]:
    items = list(values.items())
    return [(item,) for item in items] + list(combinations(items, 2))


def _weight(part: tuple[tuple[str, str], ...]) -> float:
    if len(part) == 1:
        return _VALUE_WEIGHT
    return _WEIGHTS.get((part[0][0], part[1][0]), 1.0)
