# SPDX-License-Identifier: MIT
"""Samples by measure and program, and the table of them."""

import json
import statistics
from collections.abc import Iterable, Iterator
from pathlib import Path
from typing import NamedTuple, Self

FLOOR = "bare Qt"
"""The program that the others are compared with, run by run."""

PRODUCT = "Quorvane"


class Figure(NamedTuple):
    """What was sampled of one program."""

    measure: str
    program: str
    unit: str
    samples: tuple[float, ...]

    @property
    def median(self) -> float:
        """The middle sample."""
        return statistics.median(self.samples)

    @property
    def spread(self) -> tuple[float, float]:
        """What the middle half of the samples lies between."""
        if len(self.samples) < 2:
            return self.samples[0], self.samples[0]
        quartiles = statistics.quantiles(self.samples, n=4, method="inclusive")
        return quartiles[0], quartiles[2]


class Figures:
    """All figures of a run, in the order in which they were taken."""

    def __init__(self, figures: Iterable[Figure] = ()) -> None:
        self._figures = {(figure.measure, figure.program): figure for figure in figures}

    def __iter__(self) -> Iterator[Figure]:
        return iter(self._figures.values())

    def add(self, measure: str, program: str, unit: str, *samples: float) -> None:
        """Adds samples to those that are there."""
        before = self.of(measure, program)
        earlier = before.samples if before else ()
        self._figures[measure, program] = Figure(measure, program, unit, earlier + samples)

    def of(self, measure: str, program: str) -> Figure | None:
        """One program's figure, if it was taken."""
        return self._figures.get((measure, program))

    def ratio(self, figure: Figure) -> float | None:
        """A figure's median as a multiple of the bare program's."""
        floor = self.of(figure.measure, FLOOR)
        return figure.median / floor.median if floor and floor.median else None

    def table(self) -> str:
        """The figures, a measure after the other."""
        rows = [f"{'':46}{'median':>10}{'middle half':>20}{'worst':>10}{'to bare Qt':>12}"]
        measures = list(dict.fromkeys(figure.measure for figure in self))
        for measure in measures:
            figures = [figure for figure in self if figure.measure == measure]
            rows.append(f"{measure}, {figures[0].unit} ({len(figures[0].samples)} samples)")
            rows += [self._row(figure) for figure in figures]
        return "\n".join(rows)

    def save(self, path: Path) -> None:
        """Keeps the figures in a file."""
        path.write_text(json.dumps([figure._asdict() for figure in self], indent=1) + "\n")

    @classmethod
    def load(cls, path: Path) -> Self:
        """The figures that an earlier run kept."""
        return cls(
            Figure(**(entry | {"samples": tuple(entry["samples"])}))
            for entry in json.loads(path.read_text())
        )

    def _row(self, figure: Figure) -> str:
        low, high = figure.spread
        ratio = self.ratio(figure)
        return (
            f"  {figure.program:44}{figure.median:10.2f}{f'{low:.2f} to {high:.2f}':>20}"
            f"{max(figure.samples):10.2f}{f'{ratio:.2f}' if ratio else '':>12}"
        )
