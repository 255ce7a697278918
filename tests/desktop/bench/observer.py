# SPDX-License-Identifier: MIT
"""A second client of the X server, which sees when windows appear, are painted and get the focus."""

import select
import time
from typing import NamedTuple

from Xlib import X
from Xlib.display import Display
from Xlib.ext import damage
from Xlib.protocol.rq import Event

from harness.waiting import Deadline

_LEAST_SIZE = 100  # points; smaller ones are icons, and windows that the toolkit talks through
_ANY_EVENT = 0x7F


class Sight(NamedTuple):
    """When a window was mapped, half painted, and active, on the clock of `time.perf_counter`."""

    mapped: float
    painted: float
    active: float


class Observer:
    """Watches the root window of one display, on which one program shows one window at a time."""

    def __init__(self, display: str) -> None:
        self._display = Display(display)
        self._root = self._display.screen().root
        self._active_window = self._display.get_atom("_NET_ACTIVE_WINDOW")
        self._sizes: dict[int, int] = {}
        self._shown: int | None = None
        self._mapped = self._painted = self._active = 0.0
        self._covered = 0
        self._root.change_attributes(
            event_mask=X.PropertyChangeMask | X.SubstructureNotifyMask
        )
        self._display.damage_query_version()
        # What is painted in any window is damage of the root's.
        self._root.damage_create(damage.DamageReportRawRectangles)
        self._display.sync()

    def close(self) -> None:
        """Ends the connection."""
        self._display.close()

    def wait_shown(self) -> Sight:
        """Waits until a window that did not show does, with its content and the focus."""
        deadline = Deadline("a window that is painted and active")
        while not (self._mapped and self._painted and self._active):
            self._take_events(deadline)
        return Sight(self._mapped, self._painted, self._active)

    def wait_hidden(self) -> None:
        """Waits until that window is gone."""
        deadline = Deadline("the window to be gone")
        while self._shown is not None:
            self._take_events(deadline)
        self._mapped = self._painted = self._active = 0.0

    def active_process(self) -> int:
        """The process of the active window."""
        window = self._display.create_resource_object("window", self._active_id())
        answer = window.get_full_property(
            self._display.get_atom("_NET_WM_PID"), X.AnyPropertyType
        )
        return int(answer.value[0])

    def _take_events(self, deadline: Deadline) -> None:
        if not self._display.pending_events():
            select.select([self._display], [], [], deadline.remaining())
        now = time.perf_counter()
        for _ in range(self._display.pending_events()):
            self._take(self._display.next_event(), now)

    def _take(self, event: Event, now: float) -> None:
        kind = event.type & _ANY_EVENT
        if kind in (X.CreateNotify, X.ConfigureNotify):
            self._note_size(event)
        elif kind == X.MapNotify and self._shown is None and event.window.id in self._sizes:
            self._shown, self._mapped, self._covered = event.window.id, now, 0
        elif kind in (X.UnmapNotify, X.DestroyNotify) and event.window.id == self._shown:
            self._shown = None
        elif kind == self._display.extension_event.DamageNotify and not self._painted:
            self._note_damage(event, now)
        elif kind == X.PropertyNotify and event.atom == self._active_window and not self._active:
            self._active = now if self._mapped and self._active_id() else 0.0

    def _note_size(self, event: Event) -> None:
        if min(event.width, event.height) >= _LEAST_SIZE and not event.override:
            self._sizes[event.window.id] = event.width * event.height
        else:
            self._sizes.pop(event.window.id, None)

    def _note_damage(self, event: Event, now: float) -> None:
        if self._shown is None:
            return
        # Frames and shadows are less than half of a window.
        self._covered += event.area.width * event.area.height
        if 2 * self._covered >= self._sizes[self._shown]:
            self._painted = now

    def _active_id(self) -> int:
        answer = self._root.get_full_property(self._active_window, X.AnyPropertyType)
        return int(answer.value[0]) if answer and len(answer.value) else 0
