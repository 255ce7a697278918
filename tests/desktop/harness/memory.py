# SPDX-License-Identifier: MIT
"""What a process holds: memory, files, threads, and the time that it takes."""

import os
import re
from pathlib import Path


class Memory:
    """One process, by what the kernel tells of it; memory is in bytes."""

    def __init__(self, pid: int) -> None:
        self._folder = Path("/proc") / str(pid)

    def now(self) -> int:
        """What it has at this moment."""
        return self._read("VmRSS")

    def peak(self) -> int:
        """The most that it had since `forget_peak`."""
        return self._read("VmHWM")

    def forget_peak(self) -> None:
        """Begins anew with what it has now."""
        (self._folder / "clear_refs").write_text("5")

    def private(self) -> int:
        """What nobody else has: files that are mapped do not count."""
        rollup = (self._folder / "smaps_rollup").read_text()
        return sum(
            1024 * int(kilobytes)
            for kilobytes in re.findall(r"^Private_Dirty:\s+(\d+) kB", rollup, re.MULTILINE)
        )

    def processor_time(self) -> float:
        """Seconds that the main thread has run so far, however busy the machine is."""
        nanoseconds, *_ = (self._folder / "schedstat").read_text().split()
        return int(nanoseconds) / 1e9

    def threads(self) -> int:
        """How many threads run."""
        return len(os.listdir(self._folder / "task"))

    def files(self) -> int:
        """How many files, sockets and the like are open."""
        return len(os.listdir(self._folder / "fd"))

    def _read(self, name: str) -> int:
        status = (self._folder / "status").read_text()
        found = re.search(rf"^{name}:\s+(\d+) kB", status, re.MULTILINE)
        if not found:
            raise ProcessLookupError(f"{self._folder} has ended")
        return 1024 * int(found[1])
