# SPDX-License-Identifier: MIT
"""Prints how much of each folder of src the tests have run, and ends with 1 below the floor.

    coverage.py FOLDER      the build with the preset "coverage", after its tests
"""

import collections
import json
import subprocess
import sys
from pathlib import Path

_TREE = Path(__file__).resolve().parents[2]

# Of the lines, in per cent. A folder counts as the longest of these that it lies in.
_FLOORS = {
    "src": 95,
    # Much of it answers failures of servers that no test can make fail.
    "src/platform": 85,
    # But for what is no backend.
    "src/platform/null": 95,
    "src/app/backends": 85,
    # For developers, and shown by pictures.
    "src/gallery": 0,
    "src/testing": 0,
}


class Count:
    """What there is of something, and how much of it has run."""

    def __init__(self) -> None:
        self.total = 0
        self.covered = 0

    def add(self, total: int, covered: int) -> None:
        self.total += total
        self.covered += covered

    def per_cent(self) -> float:
        return 100.0 * self.covered / self.total if self.total else 100.0


def floor_of(folder: str) -> int:
    """Asks the folder itself, then those it lies in."""
    while folder not in _FLOORS:
        folder = folder.rpartition("/")[0]
    return _FLOORS[folder]


def folder_of(file: str) -> str:
    """Headers that others include count with the library that they are of."""
    parts = Path(file).parent.parts
    return "/".join(parts[: parts.index("include")] if "include" in parts else parts)


def summary(build: Path) -> dict:
    """What gcovr reads from the counters."""
    done = subprocess.run(
        [
            "gcovr",
            f"--root={_TREE}",
            "--filter=src/",
            f"--filter={_TREE}/src/",
            "--exclude-throw-branches",
            "--exclude-unreachable-branches",
            "--json-summary",
            "-j2",
            str(build),
        ],
        cwd=_TREE,
        stdout=subprocess.PIPE,
        check=True,
    )
    return json.loads(done.stdout)


def main(build: Path) -> int:
    lines = collections.defaultdict(Count)
    branches = collections.defaultdict(Count)
    for file in summary(build)["files"]:
        folder = folder_of(file["filename"])
        lines[folder].add(file["line_total"], file["line_covered"])
        branches[folder].add(file["branch_total"], file["branch_covered"])
    below = []
    print("| folder | lines | covered | branches | covered |\n|---|---|---|---|---|")
    for folder in sorted(lines):
        line, branch = lines[folder], branches[folder]
        print(
            f"| {folder} | {line.total} | {line.per_cent():.1f} %"
            f" | {branch.total} | {branch.per_cent():.1f} % |"
        )
        if line.per_cent() < floor_of(folder):
            below.append(f"{folder}: {line.per_cent():.1f} %, less than {floor_of(folder)} %")
    print(*below, sep="\n", file=sys.stderr)
    return 1 if below else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve()))
