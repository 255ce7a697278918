# SPDX-License-Identifier: MIT
"""What grew from one run to another by more than its noise."""

import math

from .figures import FLOOR, Figure, Figures

_LEAST_NOISE = 0.03  # of the value: fewer samples than all can agree by chance
_ROUGHLY_ZERO = 1.0  # of counts, which have no noise where they are zero


def _noise(figures: Figures, figure: Figure) -> float:
    """Half the width of the middle half, as a share of the value, the bare program's included."""
    shares = [_LEAST_NOISE]
    for one in (figure, figures.of(figure.measure, FLOOR)):
        if one and one.median:
            low, high = one.spread
            shares.append((high - low) / 2 / one.median)
    return math.hypot(*shares)


def _growth(old: Figures, new: Figures, figure: Figure) -> str | None:
    before = old.of(figure.measure, figure.program)
    if before is None or figure.program == FLOOR:
        return None
    # Other machines, and other hours, are told from other programs by the bare one.
    was, now, unit = old.ratio(before), new.ratio(figure), "times the bare program's"
    if was is None or now is None:
        was, now, unit = before.median, figure.median, figure.unit
    noise = _noise(old, before) + _noise(new, figure)
    if now <= was * (1 + noise) or now - was < (_ROUGHLY_ZERO if was == 0 else 0):
        return None
    by = f", by {100 * (now / was - 1):.0f} %" if was else ""
    return (
        f"{figure.measure} of {figure.program} grew{by}: {was:.2f} -> {now:.2f} {unit}"
        f" (noise {100 * noise:.0f} %)"
    )


def growths(old: Figures, new: Figures) -> list[str]:
    """A line for each figure that is larger now, and not by chance."""
    lines = (_growth(old, new, figure) for figure in new)
    return [line for line in lines if line]
