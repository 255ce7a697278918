# SPDX-License-Identifier: MIT
"""Child processes that never outlive their test."""

import subprocess
from collections.abc import Mapping, Sequence
from pathlib import Path
from typing import Any

_GRACE = 5.0  # seconds between the request to end and the order to


class Processes:
    """The programs of one session, each with a log file of its own."""

    def __init__(self, logs: Path) -> None:
        self._logs = logs
        self._running: list[subprocess.Popen[bytes]] = []

    def start(
        self, command: Sequence[str], environment: Mapping[str, str], **options: Any
    ) -> subprocess.Popen[bytes]:
        """Starts a program; `options` are those of `subprocess.Popen`.

        The kernel ends the child when this process dies, so that a test which is killed for
        taking too long leaves nothing behind.
        """
        name = Path(command[0]).name
        with (self._logs / f"{name}.log").open("ab") as log:
            streams: dict[str, Any] = {
                "stdin": subprocess.DEVNULL,
                "stdout": log,
                "stderr": log,
            }
            process = subprocess.Popen(
                ["setpriv", "--pdeathsig", "TERM", "--", *command],
                env=dict(environment),
                **(streams | options),
            )
        self._running.append(process)
        return process

    def stop(self, process: subprocess.Popen[bytes]) -> None:
        """Ends a program that is still running; harmless where it has ended."""
        if process.poll() is None:
            process.terminate()
            try:
                process.wait(_GRACE)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        for stream in (process.stdin, process.stdout, process.stderr):
            if stream is not None:
                stream.close()
        if process in self._running:
            self._running.remove(process)

    def stop_all(self) -> None:
        """Ends everything, the youngest first: clients before the server they talk to."""
        for process in reversed(self._running[:]):
            self.stop(process)
