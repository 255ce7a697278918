# SPDX-License-Identifier: MIT
"""The windows of a session as sway tells of them."""

import select
from collections.abc import Callable, Iterator
from pathlib import Path
from typing import Any, TypeVar

from ..waiting import PATIENCE, Deadline
from ..wayland.x_focus import XFocus
from .ipc import SwayIpc

Result = TypeVar("Result")
Frame = tuple[int, int, int, int]

_LONGEST_SILENCE = 0.05  # seconds: not all that is asked for announces itself


class SwayWindows:
    """Windows by the numbers that sway gives them."""

    def __init__(self, path: Path, display: str) -> None:
        self.sway = SwayIpc(path)
        self._x_focus = XFocus(display)
        self._events = SwayIpc(path)
        self._events.subscribe("window", "workspace")

    def close(self) -> None:
        """Ends the connections."""
        self.sway.close()
        self._events.close()
        self._x_focus.close()

    def wait(
        self, condition: Callable[[], Result | None], what: str, seconds: float = PATIENCE
    ) -> Result:
        """Asks anew whenever something happens to a window, until the answer is true."""
        deadline = Deadline(what, seconds)
        while not (result := condition()):
            rest = min(deadline.remaining(), _LONGEST_SILENCE)
            if select.select([self._events], [], [], rest)[0]:
                self._events.read()
        return result

    def shown(self) -> list[int]:
        """The windows that can be seen."""
        return [window["id"] for window in self._all() if window["visible"]]

    def active(self) -> int | None:
        """The window that has the keyboard."""
        window = next((window for window in self._all() if window["focused"]), None)
        return window["id"] if window and self._has_keyboard(window) else None

    def of_process(self, pid: int, title: str | None = None) -> int | None:
        """The first shown window of a process, and of a title where one is asked for."""
        for window in self._all():
            if window["pid"] == pid and window["visible"] and title in (None, window["name"]):
                return int(window["id"])
        return None

    def of_title(self, title: str) -> int | None:
        """The first window with that title."""
        return next((window["id"] for window in self._all() if window["name"] == title), None)

    def title(self, window: int) -> str:
        """A window's title; empty where it has none, or is gone."""
        return str(self._find(window).get("name") or "")

    def frame(self, window: int) -> Frame:
        """Left, top, width and height on the screen, without what sway adds."""
        found = self._find(window)
        outer, inner = found["rect"], found["window_rect"]
        return outer["x"] + inner["x"], outer["y"] + inner["y"], inner["width"], inner["height"]

    def is_floating(self, window: int) -> bool:
        """Whether a window lies above the tiled ones."""
        return self._find(window)["type"] == "floating_con"

    def is_on_all_desktops(self, window: int) -> bool:
        """Whether a window shows on every workspace."""
        return bool(self._find(window)["sticky"])

    def activate(self, window: int) -> None:
        """Gives a window the keyboard, and waits until it has it."""
        self.command(window, "focus")
        self.wait(lambda: self.active() == window, "the window to be active")

    def show_desktop(self, number: int) -> None:
        """Brings another workspace to the front; the first is 0."""
        self.sway.command(f"workspace number {number + 1}")

    def command(self, window: int, text: str) -> None:
        """Has sway do something to a window."""
        self.sway.command(f"[con_id={window}] {text}")

    def _has_keyboard(self, window: dict[str, Any]) -> bool:
        return window.get("shell") != "xwayland" or self._x_focus.is_at(window["window"])

    def _find(self, window: int) -> dict[str, Any]:
        return next((each for each in self._all() if each["id"] == window), {})

    def _all(self) -> Iterator[dict[str, Any]]:
        return _windows_below(self.sway.tree())


def _windows_below(node: dict[str, Any]) -> Iterator[dict[str, Any]]:
    for child in node["nodes"] + node["floating_nodes"]:
        if child.get("pid"):
            yield child
        yield from _windows_below(child)
