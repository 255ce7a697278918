# SPDX-License-Identifier: MIT
"""What the kernel tells of a process."""

import os
import select
import signal
import time
from pathlib import Path
from typing import NamedTuple

from harness.waiting import Deadline

_QUIET = 0.2  # seconds without work, after which a program has nothing left to do
_PAGE_CACHE_AND_INODES = "3"
_DROP_CACHES = Path("/proc/sys/vm/drop_caches")


class Memory(NamedTuple):
    """Kilobytes: what is in memory, and what of it is the process's own."""

    resident: int
    private_dirty: int


class Activity(NamedTuple):
    """Since the process began: how often its threads had waited and went on, and for how long the
    processor was theirs, in nanoseconds.
    """

    wakeups: int
    nanoseconds: int


def memory(pid: int) -> Memory:
    """What a process takes now."""
    lines = Path(f"/proc/{pid}/smaps_rollup").read_text(encoding="ascii").splitlines()[1:]
    sizes = {line.split(":")[0]: int(line.split()[1]) for line in lines}
    return Memory(sizes["Rss"], sizes["Private_Dirty"])


def activity(pid: int) -> Activity:
    """What all threads of a process have done so far."""
    wakeups = nanoseconds = 0
    for task in Path(f"/proc/{pid}/task").iterdir():
        status = (task / "status").read_text(encoding="ascii", errors="replace")
        wakeups += int(status.split("\nvoluntary_ctxt_switches:")[1].split()[0])
        nanoseconds += int((task / "schedstat").read_text(encoding="ascii").split()[0])
    return Activity(wakeups, nanoseconds)


def wait_quiet(pid: int) -> None:
    """Waits until a process has done nothing for a moment: what is measured next is not the rest
    of what came before.
    """
    deadline = Deadline(f"process {pid} to come to rest", 30)
    before, now = None, activity(pid)
    while before != now:
        deadline.remaining()
        time.sleep(_QUIET)
        before, now = now, activity(pid)


def end(pid: int) -> None:
    """Ends a process, whoever's child it is, and waits until it has."""
    try:
        process = os.pidfd_open(pid)
    except ProcessLookupError:
        return
    try:
        signal.pidfd_send_signal(process, signal.SIGTERM)
        if not select.select([process], [], [], 5)[0]:
            signal.pidfd_send_signal(process, signal.SIGKILL)
            select.select([process], [], [], 5)
    except ProcessLookupError:
        pass
    finally:
        os.close(process)


def can_empty_caches() -> bool:
    """Whether this process may have the machine forget what it read from its disks."""
    return os.access(_DROP_CACHES, os.W_OK)


def empty_caches() -> None:
    """Has the machine forget all that it has read and that no running program maps."""
    os.sync()
    _DROP_CACHES.write_text(_PAGE_CACHE_AND_INODES, encoding="ascii")
