# SPDX-License-Identifier: MIT
"""Runs a soak: cases until the time is up, or those that are named."""

import argparse
import random
import shutil
import sys
import time
import traceback
from collections.abc import Iterator, Sequence
from importlib.util import find_spec
from pathlib import Path

from harness.paths import TREE

from .axes import AXES, MORE_TERMINALS, STRETCH_AXES, Case
from .desk import Desk
from .picker import Picker
from .report import Report
from .rounds import CaseRun, CopiedInstead

_STRETCH = 40
"""Cases in one session."""

_EXECUTABLES = {
    "gnome-text-editor": "gnome-text-editor",
    "mousepad": "mousepad",
    "featherpad": "featherpad",
    "xterm": "xterm",
    "xfce4-terminal": "xfce4-terminal",
    "qterminal": "qterminal",
    "writer": "soffice",
    "chromium": "chromium",
    "firefox": "firefox-esr",
    "emacs": "emacs",
    "parcellite": "parcellite",
    "copyq": "copyq",
    "openbox": "openbox",
    "xfwm4": "xfwm4",
    "i3": "i3",
}


def _arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="./dev soak", description=__doc__)
    parser.add_argument("seconds", type=float, nargs="?", default=900)
    parser.add_argument("seed", type=int, nargs="?", default=random.randrange(1_000_000))
    parser.add_argument("--case", action="append", type=Case.parse, help="run just this case")
    parser.add_argument("--cases", type=int, help="end after this number of cases")
    for axis in AXES:
        parser.add_argument(f"--{axis}", help="only these values, with commas between them")
    return parser.parse_args()


def _choices(arguments: argparse.Namespace) -> dict[str, list[str]]:
    choices = {}
    for axis, values in AXES.items():
        wanted = getattr(arguments, axis)
        # Layouts have commas of their own.
        usual = [value for value in values if value not in MORE_TERMINALS]
        named = wanted.split(" " if axis == "layout" else ",") if wanted else usual
        if unknown := set(named) - set(values):
            sys.exit(f"no {axis} is called {', '.join(sorted(unknown))}")
        choices[axis] = [value for value in values if value in named and _is_there(value)]
    return choices


def _is_there(value: str) -> bool:
    if value == "writer" and find_spec("uno") is None:
        return False
    program = _EXECUTABLES.get(value)
    if program is None and value in MORE_TERMINALS:
        program = value
    return program is None or shutil.which(program) is not None


def _stretches(arguments: argparse.Namespace) -> Iterator[Iterator[Case]]:
    """The cases, those of one session together."""
    if arguments.case:
        yield iter(arguments.case)
        return
    end = time.monotonic() + arguments.seconds
    picker = Picker(arguments.seed, _choices(arguments))
    left = arguments.cases or sys.maxsize
    number = 0
    while left > 0 and time.monotonic() < end:
        shared = {axis: picker.stretch(number, axis) for axis in STRETCH_AXES}
        size = min(left, _STRETCH)
        yield _until(end, (picker.pick(shared) for _ in range(size)))
        left -= size
        number += 1


def _until(end: float, cases: Iterator[Case]) -> Iterator[Case]:
    for case in cases:
        if time.monotonic() >= end:
            return
        yield case


def _run(cases: Iterator[Case], report: Report) -> None:
    """Runs cases at one desk, at a new one after each failure."""
    case = next(cases, None)
    while case is not None:
        with Desk(case.wm, case.locale) as desk:
            before: list[Case] = []
            while case is not None and (case.wm, case.locale) == (desk.wm, desk.locale):
                succeeded = _run_one(desk, case, before, report)
                before.append(case)
                case = next(cases, None)
                if not succeeded:
                    break


def _run_one(desk: Desk, case: Case, before: Sequence[Case], report: Report) -> bool:
    report.begin(case)
    try:
        try:
            CaseRun(desk, case, report).run()
        except CopiedInstead:
            # A busy machine's window manager may be late once; twice is a failure.
            report.repeat(case)
            CaseRun(desk, case, report).run()
    except Exception as error:  # whatever a foreign program did: the soak goes on
        notes = " ".join(getattr(error, "__notes__", ()))
        logs = traceback.format_exc() + desk.session.logs()
        report.fail(case, before, f"{type(error).__name__}: {error} {notes}".strip(), logs)
        return False
    return True


def main() -> int:
    """Returns the exit status: 1 if a case failed."""
    arguments = _arguments()
    missing = sorted(value for value in _EXECUTABLES if not _is_there(value))
    if missing and not arguments.target:
        print(f"Left out, because this machine lacks them: {', '.join(missing)}")
    if not arguments.case:
        print(f"Seed {arguments.seed}, {arguments.seconds:.0f} seconds", flush=True)
    report = Report(Path(TREE) / "build" / "soak")
    for cases in _stretches(arguments):
        _run(cases, report)
    print(f"\n{report.summary()}")
    return 1 if report.failed else 0


if __name__ == "__main__":
    sys.exit(main())
