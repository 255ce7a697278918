# SPDX-License-Identifier: MIT
"""The windows of a session as its X server and its window manager report them."""

import select
from collections.abc import Callable
from typing import TypeVar

from Xlib import X
from Xlib.display import Display
from Xlib.error import XError
from Xlib.protocol.event import ClientMessage
from Xlib.xobject.drawable import Window

from .waiting import PATIENCE, Deadline, Timeout, wait_until

Result = TypeVar("Result")

_THINNEST_MENU = 16  # points; window managers have thinner windows of their own


class Windows:
    """Observes one display: every wait ends with the event that fulfils it."""

    def __init__(self, display: str) -> None:
        self._display = Display(display)
        self._root = self._display.screen().root
        self._root.change_attributes(
            event_mask=X.PropertyChangeMask | X.SubstructureNotifyMask
        )

    def close(self) -> None:
        """Ends the connection."""
        self._display.close()

    def wait(
        self, condition: Callable[[], Result | None], what: str, seconds: float = PATIENCE
    ) -> Result:
        """Asks anew whenever something happens to a window, until the answer is true."""
        deadline = Deadline(what, seconds)
        while True:
            for _ in range(self._display.pending_events()):
                self._display.next_event()
            if result := condition():
                return result
            try:
                self._wait_for_event(deadline)
            except Timeout as timeout:
                timeout.add_note(self.describe())
                raise

    def describe(self) -> str:
        """The windows on the screen in words, for whoever looks into a failure."""
        active = self.active()
        lines = (
            f"{window:#x} {self.title(window)!r} {self.wm_class(window)}"
            f"{' is active' if window == active else ''}"
            for window in self.shown()
        )
        return "Windows:\n" + "\n".join(lines)

    def is_managed(self) -> bool:
        """Whether a window manager of the EWMH kind is at work."""
        check = self._first(self._root, "_NET_SUPPORTING_WM_CHECK")
        return bool(check) and self._first(self._window(check), "_NET_SUPPORTING_WM_CHECK") == check

    def manager(self) -> int | None:
        """The window by which the window manager at work announces itself."""
        return self._first(self._root, "_NET_SUPPORTING_WM_CHECK") if self.is_managed() else None

    def wait_for_manager(self) -> None:
        """Waits until a window manager is at work.

        One that is starting announces itself before it listens, and what happens in between is
        lost: windows stay unmapped or without the focus. That it answers a request, and that a
        window of ours then gets the focus, is what tells that it has started.
        """
        self.wait(self.is_managed, "a window manager")
        probe = self._wait_for_answer()
        probe.map()
        self.wait(lambda: probe.id in self.shown(), "the window manager to show a window")
        self.activate(probe.id)
        probe.destroy()
        self.wait(lambda: probe.id not in self.shown(), "the window manager to forget a window")

    def let_manager_catch_up(self) -> None:
        """Waits until the window manager has taken note of all that happened before."""
        if self.is_managed():
            self._wait_for_answer().destroy()

    def shown(self) -> list[int]:
        """The application windows on the screen, oldest first."""
        if self.is_managed():
            return self._cardinals(self._root, "_NET_CLIENT_LIST")
        children = (child.id for child in self._root.query_tree().children)
        return [window for window in children if self._is_viewable(window)]

    def menu(self) -> int | None:
        """The menu that is open, of whichever program: not all say so by the window's type."""
        for child in reversed(self._root.query_tree().children):
            try:
                attributes = child.get_attributes()
                is_readable = min(self.frame(child.id)[2:]) > _THINNEST_MENU
            except XError:
                continue  # it went while it was looked at
            is_unmanaged = attributes.override_redirect and attributes.map_state == X.IsViewable
            if is_unmanaged and is_readable and self.wm_class(child.id):
                return child.id
        return None

    def active(self) -> int | None:
        """The window that has the user's attention, and the keyboard.

        Window managers go on naming a window that was hidden, and name it when it shows again,
        before they have given it the keyboard.
        """
        if self.is_managed():
            named = self._first(self._root, "_NET_ACTIVE_WINDOW")
            return named if named and self._has_keyboard(named) else None
        focus = self._display.get_input_focus().focus
        return focus.id if isinstance(focus, Window) and focus != self._root else None

    def of_process(self, pid: int, title: str | None = None) -> int | None:
        """The first shown window of a process, and of a title where one is asked for."""
        for window in self.shown():
            if self._first(self._window(window), "_NET_WM_PID") == pid:
                if title is None or self.title(window) == title:
                    return window
        return None

    def frame(self, window: int) -> tuple[int, int, int, int]:
        """Left, top, width and height on the screen, without what a window manager adds."""
        geometry = self._window(window).get_geometry()
        place = self._root.translate_coords(self._window(window), 0, 0)
        return place.x, place.y, geometry.width, geometry.height

    def title(self, window: int) -> str:
        """A window's title; empty where it has none, or is gone."""
        value = self._property(self._window(window), "_NET_WM_NAME")
        return bytes(value).decode() if value is not None else ""

    def wm_class(self, window: int) -> tuple[str, str] | None:
        """A window's instance and class names."""
        try:
            return self._window(window).get_wm_class()
        except XError:
            return None

    def states(self, window: int) -> set[str]:
        """The EWMH states of a window, by name."""
        atoms = self._cardinals(self._window(window), "_NET_WM_STATE")
        return {self._display.get_atom_name(atom) for atom in atoms}

    def move(self, window: int, x: int, y: int) -> None:
        """Moves a window as a user's own tool does."""
        self._window(window).configure(x=x, y=y)
        self._display.sync()

    def resize(self, window: int, width: int, height: int) -> None:
        """Gives a window another size."""
        self._window(window).configure(width=width, height=height)
        self._display.sync()

    def show_desktop(self, number: int) -> None:
        """Brings another virtual desktop to the front, and waits until it is there."""
        self._send_to_manager(self._root, "_NET_CURRENT_DESKTOP", [number, X.CurrentTime, 0, 0, 0])
        self.wait(
            lambda: self._cardinals(self._root, "_NET_CURRENT_DESKTOP") == [number],
            f"desktop {number}",
        )

    def minimise(self, window: int) -> None:
        """Makes an icon of a window (ICCCM 4.1.4), and waits until it no longer shows."""
        iconic_state = 3
        self._send_to_manager(self._window(window), "WM_CHANGE_STATE", [iconic_state, 0, 0, 0, 0])
        self.wait(lambda: not self._is_viewable(window), "the window to be minimised")

    def is_on_all_desktops(self, window: int) -> bool:
        """Whether a window shows on every virtual desktop."""
        return self._cardinals(self._window(window), "_NET_WM_DESKTOP") == [0xFFFFFFFF]

    def focus(self, window: int) -> None:
        """Gives a window the keyboard as a session without a window manager does."""
        self._window(window).set_input_focus(X.RevertToPointerRoot, X.CurrentTime)
        self._display.sync()

    def activate(self, window: int) -> None:
        """Brings a window to the front as a taskbar does, and waits until it is there."""
        if not self.is_managed():
            self.focus(window)
        else:
            source_is_pager = 2
            values = [source_is_pager, X.CurrentTime, 0, 0, 0]
            self._send_to_manager(self._window(window), "_NET_ACTIVE_WINDOW", values)
        self.wait(lambda: self.active() == window, "the window to be active")

    def _wait_for_answer(self) -> Window:
        """Has the window manager say something of a new window, which is returned."""
        probe = self._root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)

        def answers() -> bool:
            self._send_to_manager(probe, "_NET_REQUEST_FRAME_EXTENTS", [0, 0, 0, 0, 0])
            return self._property(probe, "_NET_FRAME_EXTENTS") is not None

        wait_until(answers, "an answer from the window manager")
        return probe

    def _has_keyboard(self, window: int) -> bool:
        # Selected before it is asked: a wait goes on with the event.
        self._window(window).change_attributes(
            event_mask=X.FocusChangeMask, onerror=lambda *_: None
        )
        focus = self._display.get_input_focus().focus
        try:
            while isinstance(focus, Window) and focus != self._root:
                if focus.id == window:
                    return True
                focus = focus.query_tree().parent
        except XError:
            pass  # it went while it was looked at
        return False

    def _wait_for_event(self, deadline: Deadline) -> None:
        # The question asked before may have read the event into the client's queue already.
        if not self._display.pending_events():
            select.select([self._display], [], [], deadline.remaining())

    def _send_to_manager(self, window: Window, name: str, values: list[int]) -> None:
        message = ClientMessage(
            window=window, client_type=self._display.get_atom(name), data=(32, values)
        )
        mask = X.SubstructureRedirectMask | X.SubstructureNotifyMask
        self._root.send_event(message, event_mask=mask)
        self._display.flush()

    def _window(self, window: int) -> Window:
        return self._display.create_resource_object("window", window)

    def _property(self, window: Window, name: str) -> object | None:
        try:
            answer = window.get_full_property(self._display.get_atom(name), X.AnyPropertyType)
        except XError:
            return None
        return answer.value if answer else None

    def _cardinals(self, window: Window, name: str) -> list[int]:
        value = self._property(window, name)
        return [int(item) for item in value] if value is not None else []

    def _first(self, window: Window, name: str) -> int | None:
        values = self._cardinals(window, name)
        return values[0] if values and values[0] else None

    def _is_viewable(self, window: int) -> bool:
        try:
            return self._window(window).get_attributes().map_state == X.IsViewable
        except XError:
            return False
