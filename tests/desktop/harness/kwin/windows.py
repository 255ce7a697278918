# SPDX-License-Identifier: MIT
"""The windows of a session as KWin tells of them to taskbars."""

from collections.abc import Callable
from dataclasses import dataclass, field
from pathlib import Path
from typing import TypeVar

from ..waiting import Timeout
from ..wayland.connection import Reader, WaylandConnection
from ..wayland.x_focus import XFocus

Result = TypeVar("Result")
Frame = tuple[int, int, int, int]

_GET_WINDOW = 2
_WINDOW_CAME = 4
_SET_STATE = 0
_GET_DESKTOP, _DESKTOP_CAME, _SHOW_DESKTOP = 0, 0, 0
_TITLE, _APP_ID, _STATE, _WENT, _GEOMETRY, _PID = 0, 1, 2, 5, 8, 10

_LONGEST_SILENCE = 0.05  # seconds: the X server does not announce who has its keyboard

_ACTIVE = 1 << 0
_MINIMISED = 1 << 1
_ABOVE = 1 << 4
_ON_ALL_DESKTOPS = 1 << 6
_NOT_IN_TASKBAR = 1 << 12


@dataclass
class _Window:
    """What has been told of one window so far."""

    title: str = ""
    app_id: str = ""
    state: int = 0
    pid: int = 0
    frame: Frame = field(default=(0, 0, 0, 0))


class KwinWindows:
    """Windows by the numbers of the objects that stand for them."""

    def __init__(self, display: Path, x_display: str) -> None:
        self._connection = WaylandConnection(display)
        self._x_focus = XFocus(x_display)
        self._windows: dict[int, _Window] = {}
        self._manager = self._connection.bind(
            "org_kde_plasma_window_management", 16, self._handle_manager
        )
        self._desktops: list[str] = []
        self._changes = 0
        self._desktop_manager = self._connection.bind(
            "org_kde_plasma_virtual_desktop_management", 1, self._handle_desktops
        )
        self._catch_up()

    def close(self) -> None:
        """Ends the connection."""
        self._connection.close()
        self._x_focus.close()

    def wait(self, condition: Callable[[], Result | None], what: str) -> Result:
        """Asks anew whenever something happens to a window, until the answer is true."""
        answers: list[Result] = []

        def holds() -> bool:
            while not answers:
                before = self._changes
                if result := condition():
                    answers.append(result)
                elif self._changes == before:
                    return False
                # What changed while it was asked has no event any more that would wake us.
            return True

        try:
            self._connection.wait(holds, what, _LONGEST_SILENCE)
        except Timeout as timeout:
            timeout.add_note(f"Windows: {list(self._windows.values())}")
            raise
        return answers[0]

    def shown(self) -> list[int]:
        """The windows that are not minimised, oldest first."""
        self._catch_up()
        return [number for number in self._windows if not self._is(number, _MINIMISED)]

    def active(self) -> int | None:
        """The window that has the keyboard."""
        number = next((number for number in self.shown() if self._is(number, _ACTIVE)), None)
        return number if number and self._has_keyboard(self._windows[number]) else None

    def of_process(self, pid: int, title: str | None = None) -> int | None:
        """The first shown window of a process, and of a title where one is asked for."""
        for number in self.shown():
            window = self._windows[number]
            if window.pid == pid and title in (None, window.title):
                return number
        return None

    def title(self, window: int) -> str:
        """A window's title; empty where it has none, or is gone."""
        return self._windows.get(window, _Window()).title

    def frame(self, window: int) -> Frame:
        """Left, top, width and height on the screen, with what KWin adds."""
        self._catch_up()
        return self._windows[window].frame

    def is_above(self, window: int) -> bool:
        """Whether a window stays above the others."""
        return self._is(window, _ABOVE)

    def is_on_all_desktops(self, window: int) -> bool:
        """Whether a window shows on every virtual desktop."""
        return self._is(window, _ON_ALL_DESKTOPS)

    def is_in_taskbar(self, window: int) -> bool:
        """Whether taskbars show a window."""
        return not self._is(window, _NOT_IN_TASKBAR)

    def activate(self, window: int) -> None:
        """Gives a window the keyboard as a taskbar does, and waits until it has it."""
        self._connection.request(window, _SET_STATE, _ACTIVE, _ACTIVE)
        self.wait(lambda: self.active() == window, "the window to be active")

    def minimise(self, window: int) -> None:
        """Makes an icon of a window, and waits until it no longer shows."""
        self._connection.request(window, _SET_STATE, _MINIMISED, _MINIMISED)
        self.wait(lambda: window not in self.shown(), "the window to be minimised")

    def show_desktop(self, number: int) -> None:
        """Brings another virtual desktop to the front; the first is 0."""
        desktop = self._connection.make_object()
        request = (self._desktop_manager, _GET_DESKTOP, desktop, self._desktops[number])
        self._connection.request(*request)
        self._connection.request(desktop, _SHOW_DESKTOP)
        self._catch_up()

    def let_manager_catch_up(self) -> None:
        """Waits until KWin has taken note of all that happened before."""
        self._catch_up()

    def _catch_up(self) -> None:
        self._connection.settle()

    def _has_keyboard(self, window: _Window) -> bool:
        return self._x_focus.is_given(window.pid, window.title)

    def _is(self, window: int, state: int) -> bool:
        return bool(self._windows[window].state & state)

    def _handle_manager(self, event: int, arguments: Reader) -> None:
        if event != _WINDOW_CAME:
            return
        arguments.number()
        window = _Window()
        item = self._connection.make_object()
        self._connection.follow(item, lambda event, told: self._handle(item, event, told))
        self._windows[item] = window
        self._connection.request(self._manager, _GET_WINDOW, item, arguments.text())

    def _handle_desktops(self, event: int, arguments: Reader) -> None:
        if event == _DESKTOP_CAME:
            self._desktops.append(arguments.text())

    def _handle(self, item: int, event: int, arguments: Reader) -> None:
        self._changes += 1
        window = self._windows.get(item, _Window())
        if event == _TITLE:
            window.title = arguments.text()
        elif event == _APP_ID:
            window.app_id = arguments.text()
        elif event == _STATE:
            window.state = arguments.number()
        elif event == _PID:
            window.pid = arguments.number()
        elif event == _GEOMETRY:
            left, top = arguments.signed_number(), arguments.signed_number()
            window.frame = (left, top, arguments.number(), arguments.number())
        elif event == _WENT:
            self._windows.pop(item, None)
