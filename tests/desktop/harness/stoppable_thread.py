# SPDX-License-Identifier: MIT
"""A thread that ends when it is told to."""

import os
import threading
from collections.abc import Callable


class StoppableThread:
    """Runs until it has read that it is to stop."""

    def __init__(self, run: Callable[[int], None]) -> None:
        """`run` gets the file that becomes readable when it is to return."""
        self._stopping, self._stop = os.pipe()
        self._thread = threading.Thread(target=run, args=(self._stopping,))
        self._thread.start()

    def close(self) -> None:
        """Has it stop, and waits until it has."""
        os.write(self._stop, b"x")
        self._thread.join()
        for file in (self._stop, self._stopping):
            os.close(file)
