# SPDX-License-Identifier: MIT
"""A program that has taken the keyboard for itself, as a screen lock has."""

from types import TracebackType

from Xlib import X
from Xlib.display import Display


class ScreenLock:
    """Grabs the keyboard of a display for as long as the context lasts."""

    def __init__(self, display: str) -> None:
        self._display = Display(display)

    def __enter__(self) -> "ScreenLock":
        root = self._display.screen().root
        status = root.grab_keyboard(True, X.GrabModeAsync, X.GrabModeAsync, X.CurrentTime)
        if status != X.GrabSuccess:
            raise RuntimeError(f"somebody else has the keyboard: {status}")
        return self

    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        trace: TracebackType | None,
    ) -> None:
        self._display.close()
