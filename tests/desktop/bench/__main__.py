# SPDX-License-Identifier: MIT
"""Measures on desktops of its own, and prints a table."""

import argparse
import os
import sys
from contextlib import closing
from pathlib import Path

from harness.session import Session
from harness.sway.session import SwaySession

from .benchmarks import measure_benchmarks
from .comparison import growths
from .figures import Figures
from .growth import measure_growth
from .insertion import measure_insertion
from .observer import Observer
from .process import can_empty_caches
from .programs import (
    BARE_PANEL,
    BARE_SHORTCUT,
    BARE_START,
    QUORVANE,
    QUORVANE_HIDDEN,
    dejavu_alone,
    other_programs,
)
from .rest import resting
from .shows import Shows
from .starts import Starts
from .sway_observer import SwayObserver

_WARM_STARTS = 15
_QUICK_STARTS = 7
_COLD_STARTS = 8
_PROCESSES_SHOWN = 8
_SHOWS_OF_EACH = 4
_INSERTIONS = 100


def _arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="./dev bench", description=__doc__)
    parser.add_argument("--json", type=Path, metavar="FILE", help="keep the figures in a file")
    parser.add_argument(
        "--against", type=Path, metavar="FILE", help="name what grew since an earlier run"
    )
    parser.add_argument(
        "--quick", action="store_true", help="only warm starts, and the memory that they take"
    )
    parser.add_argument(
        "--growth", action="store_true", help="only how times grow with what there is to do"
    )
    parser.add_argument(
        "--wayland", action="store_true", help="only warm starts and memory, on X11 and on sway"
    )
    return parser.parse_args()


def _starts(session: Session, figures: Figures) -> Starts:
    return Starts(session, figures, Observer(session.display))


def _measure_wayland(figures: Figures) -> None:
    os.sync()
    bare_and_ours = [BARE_START, QUORVANE]
    with Session("openbox") as session, closing(_starts(session, figures)) as starts:
        starts.warm(bare_and_ours, _WARM_STARTS)
    with SwaySession() as session:
        observer = SwayObserver(session)
        with closing(Starts(session, figures, observer, ", sway")) as starts:
            starts.warm(bare_and_ours, _WARM_STARTS)


def _measure_starts(figures: Figures, is_quick: bool) -> None:
    # What was built a moment ago would count as the process's own until it is on the disk.
    os.sync()
    bare_and_ours = [BARE_START, QUORVANE]
    with Session("openbox") as session, closing(_starts(session, figures)) as starts:
        if is_quick:
            starts.warm(bare_and_ours, _QUICK_STARTS)
            return
        everybody = bare_and_ours + other_programs()
        starts.warm(everybody, _WARM_STARTS)
        starts.warm(bare_and_ours, _WARM_STARTS, ", DejaVu alone", **dejavu_alone(session))
        if can_empty_caches():
            starts.cold(everybody, _COLD_STARTS)
        else:
            print("No cold starts: only root can empty the machine's caches.", file=sys.stderr)


def _measure_use(figures: Figures) -> None:
    with Session("openbox") as session, closing(Shows(session, figures)) as shows:
        shows.measure(
            [BARE_SHORTCUT, BARE_PANEL, QUORVANE_HIDDEN], _PROCESSES_SHOWN, _SHOWS_OF_EACH
        )
    with resting(figures), Session("openbox") as session:
        measure_insertion(session, figures, _INSERTIONS)


def main() -> None:
    """Measures what the arguments ask for; a growth is named and is no failure."""
    arguments = _arguments()
    earlier = Figures.load(arguments.against) if arguments.against else None
    figures = Figures()
    is_whole = not (arguments.quick or arguments.growth or arguments.wayland)
    if arguments.growth:
        measure_growth(figures)
    elif arguments.wayland:
        _measure_wayland(figures)
    else:
        _measure_starts(figures, arguments.quick)
    if is_whole:
        _measure_use(figures)
    print(figures.table(), flush=True)
    if is_whole:
        with Session(None) as session:
            measure_benchmarks(session.root, figures)
    if arguments.json:
        figures.save(arguments.json)
    if earlier:
        lines = growths(earlier, figures)
        print("\n".join(lines) if lines else f"Nothing grew since {arguments.against}.")


if __name__ == "__main__":
    main()
