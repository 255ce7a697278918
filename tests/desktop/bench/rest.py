# SPDX-License-Identifier: MIT
"""What a program does that is left alone."""

import time
from collections.abc import Iterator
from contextlib import ExitStack, contextmanager

from harness.session import Session

from .figures import Figures
from .observer import Observer
from .process import activity, end, wait_quiet
from .programs import BARE_SHORTCUT, BARE_START, QUORVANE, QUORVANE_HIDDEN, Program, start

_LEAST = 30.0  # seconds
# A start has ended when its last deadline has passed: a hidden one waits ten seconds for a way in.
_START = 12.0
_NANO_PER_MILLI = 1e6

_STATES = {"hidden": (BARE_SHORTCUT, QUORVANE_HIDDEN), "shown": (BARE_START, QUORVANE)}


@contextmanager
def resting(figures: Figures) -> Iterator[None]:
    """Leaves the programs alone, hidden and shown, each on a desktop of its own, while the block
    measures something else, and for thirty seconds at least.
    """
    with ExitStack() as stack:
        started = [
            (state, program, _begin(stack, program, state == "shown"))
            for state, programs in _STATES.items()
            for program in programs
        ]
        time.sleep(_START)
        resting_programs = [(*each, activity(each[-1])) for each in started]
        began = time.monotonic()
        yield
        time.sleep(max(0.0, _LEAST - (time.monotonic() - began)))
        share = _LEAST / (time.monotonic() - began)
        for state, program, pid, before in resting_programs:
            now = activity(pid)
            wakeups = share * (now.wakeups - before.wakeups)
            busy = share * (now.nanoseconds - before.nanoseconds) / _NANO_PER_MILLI
            figures.add(f"wakeups in 30 s, {state}", program.name, "times", wakeups)
            figures.add(f"processor in 30 s, {state}", program.name, "ms", busy)


def _begin(stack: ExitStack, program: Program, is_shown: bool) -> int:
    session = stack.enter_context(Session("openbox"))
    observer = Observer(session.display)
    stack.callback(observer.close)
    process, _ = start(session, program)
    stack.callback(process.wait, 10)
    stack.callback(end, process.pid)
    if is_shown:
        observer.wait_shown()
    wait_quiet(process.pid)
    return process.pid
