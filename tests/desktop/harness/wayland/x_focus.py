# SPDX-License-Identifier: MIT
"""The keyboard as the X server of a compositor gives it to its windows."""

from collections.abc import Sequence
from contextlib import suppress

from Xlib import X
from Xlib.display import Display
from Xlib.error import ConnectionClosedError, XError
from Xlib.xobject.drawable import Window


class XFocus:
    """Follows one X server, from the first question on: until then it need not run.

    A compositor tells that a window of X11 is active while the X server has yet to be told, and keys
    that come to it before go nowhere.
    """

    def __init__(self, display: str) -> None:
        self._name = display
        self._display: Display | None = None

    def close(self) -> None:
        """Ends the connection."""
        if self._display:
            with suppress(ConnectionClosedError):  # the server may have gone with its compositor
                self._display.close()

    def is_given(self, pid: int, title: str) -> bool:
        """Whether the window of a process and a title has the keyboard, where it is one of X11."""
        windows = [window for window in self._clients() if self._is(window, pid, title)]
        return not windows or any(self.is_at(window.id) for window in windows)

    def is_at(self, window: int) -> bool:
        """Whether a window, or one inside of it, has the keyboard."""
        focus = self._server().get_input_focus().focus
        try:
            while isinstance(focus, Window) and focus.id != X.NONE:
                if focus.id == window:
                    return True
                focus = focus.query_tree().parent
        except XError:
            pass  # it went while it was looked at
        return False

    def _server(self) -> Display:
        self._display = self._display or Display(self._name)
        return self._display

    def _clients(self) -> list[Window]:
        server = self._server()
        windows = self._property(server.screen().root, "_NET_CLIENT_LIST")
        return [server.create_resource_object("window", window) for window in windows]

    def _is(self, window: Window, pid: int, title: str) -> bool:
        try:
            told = self._property(window, "_NET_WM_PID"), self._property(window, "_NET_WM_NAME")
        except XError:
            return False  # it went while it was looked at
        return [list(value) for value in told] == [[pid], list(title.encode())]

    def _property(self, window: Window, name: str) -> Sequence[int]:
        answer = window.get_full_property(self._server().get_atom(name), X.AnyPropertyType)
        return answer.value if answer else []
