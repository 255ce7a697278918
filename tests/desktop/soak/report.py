# SPDX-License-Identifier: MIT
"""What came of a soak: one line a failure while it runs, tables at its end."""

import statistics
from collections import Counter, defaultdict
from collections.abc import Iterable, Sequence
from pathlib import Path

from .axes import Case

STAGES = ("shortcut to active panel", "Insert to text", "text to clipboard as before")


class Report:
    """Collects cases, rounds, failures, and how long each stage of a round took."""

    def __init__(self, folder: Path) -> None:
        self._folder = folder
        self._cases = 0
        self._repeated = 0
        self._rounds: Counter[str] = Counter()
        self._failures: Counter[str] = Counter()
        self._seconds: dict[tuple[str, str], list[float]] = defaultdict(list)

    @property
    def failed(self) -> int:
        """How many cases failed."""
        return self._failures.total()

    @property
    def cases(self) -> int:
        """How many cases were run."""
        return self._cases

    def begin(self, case: Case) -> None:
        """Counts a case."""
        self._cases += 1
        print(f"{self._cases:4} {case}", flush=True)

    def repeat(self, case: Case) -> None:
        """Counts a case whose text was copied because the focus came back too late."""
        self._repeated += 1
        print(f"Copied instead, the focus came back late; once more: {case}", flush=True)

    def time(self, case: Case, stage: str, seconds: float) -> None:
        """Notes how long a stage took."""
        self._seconds[stage, case.target].append(seconds)

    def end_round(self, case: Case) -> None:
        """Counts a round that went well."""
        self._rounds[case.target] += 1

    def fail(self, case: Case, before: Sequence[Case], reason: str, logs: str) -> None:
        """Tells of a failure, and how to repeat it."""
        self._failures[case.target] += 1
        self._folder.mkdir(parents=True, exist_ok=True)
        file = self._folder / f"failure-{self.failed}.txt"
        earlier = "".join(f"{each}\n" for each in before)
        file.write_text(f"{case}\n\n{reason}\n\nBefore it, in the same session:\n{earlier}\n{logs}")
        print(f"FAILED: {reason}\n  all about it: {file}\n  repeat: {_command([case])}")
        if before:
            print(f"  with the case before it: {_command([before[-1], case])}")

    def summary(self) -> str:
        """Counts and times, as a table that can be pasted."""
        head = f"{self._cases} cases, {self._rounds.total()} rounds, {self.failed} failures"
        head += f" ({self._repeated} cases repeated: the focus came back late, the text was copied)"
        targets = sorted({target for _, target in self._seconds} | set(self._failures))
        rows = [self._row(target, [target]) for target in targets] + [self._row("all", targets)]
        titles = " | ".join(f"{stage}: median, worst" for stage in STAGES)
        lines = [
            f"| milliseconds | rounds | failures | {titles} |",
            "|" + "---|" * (3 + len(STAGES)),
            *rows,
        ]
        return "\n".join([head, "", *lines])

    def _row(self, name: str, targets: Iterable[str]) -> str:
        targets = list(targets)
        cells = [name, str(sum(self._rounds[target] for target in targets))]
        cells.append(str(sum(self._failures[target] for target in targets)))
        for stage in STAGES:
            times = [each for target in targets for each in self._seconds[stage, target]]
            cells.append(_figures(times))
        return f"| {' | '.join(cells)} |"


def _figures(seconds: Sequence[float]) -> str:
    if not seconds:
        return "–"
    return f"{1000 * statistics.median(seconds):.0f}, {1000 * max(seconds):.0f}"


def _command(cases: Iterable[Case]) -> str:
    return "./dev soak " + " ".join(f"--case '{case}'" for case in cases)
