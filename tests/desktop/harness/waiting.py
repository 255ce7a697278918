# SPDX-License-Identifier: MIT
"""Waiting for conditions, never for a time."""

import os
import time
from collections.abc import Callable
from typing import TypeVar

Result = TypeVar("Result")

PATIENCE = float(os.environ.get("QUORVANE_TEST_PATIENCE", "10"))
"""Seconds within which a healthy, if busy, machine does anything that the tests wait for."""


class Timeout(AssertionError):
    """What was waited for did not come about."""


class Deadline:
    """A moment in the future, and what is awaited until then."""

    def __init__(self, what: str, seconds: float = PATIENCE) -> None:
        self._what = what
        self._seconds = seconds
        self._end = time.monotonic() + seconds

    def remaining(self) -> float:
        """Seconds left; raises `Timeout` where none are."""
        left = self._end - time.monotonic()
        if left <= 0:
            raise Timeout(f"{self._what}: not within {self._seconds} s")
        return left


def wait_until(
    condition: Callable[[], Result | None],
    what: str,
    seconds: float = PATIENCE,
    interval: float = 0.01,
) -> Result:
    """Asks until the answer is true, and returns it.

    For things that announce themselves by no event: the contents of a file, the text in another
    process. The interval is the pause between two questions.
    """
    deadline = Deadline(what, seconds)
    while not (result := condition()):
        time.sleep(min(interval, deadline.remaining()))
    return result
