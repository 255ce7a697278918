# SPDX-License-Identifier: MIT
"""The window that the text is meant for: as it is, or gone when the text comes."""

from contextlib import ExitStack
from types import TracebackType

from harness.keys import SHORTCUT, Key
from harness.waiting import wait_until
from Xlib import X, Xutil
from Xlib.display import Display
from Xlib.protocol.event import ClientMessage

from .axes import Case
from .desk import Desk
from .layouts import Layout
from .programs import Program

_HINT = "x-kde-passwordManagerHint"
_ADD, _REMOVE = 1, 0
_FROM_PAGER = 2


class WindowState:
    """Makes the window what the case says, for as long as it is entered."""

    def __init__(self, desk: Desk, case: Case, target: Program) -> None:
        self._desk = desk
        self._case = case
        self._target = target
        self._undo = ExitStack()
        self._display = Display(desk.session.display)

    @property
    def is_gone(self) -> bool:
        """Whether there is no window to type into when the text comes."""
        return self._case.window in ("minimised", "closed", "locked")

    def __enter__(self) -> "WindowState":
        if self._case.window == "full-screen":
            self._undo.callback(self._set_full_screen, _REMOVE)
            self._set_full_screen(_ADD)
        return self

    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        trace: TracebackType | None,
    ) -> None:
        self._undo.close()
        self._display.close()

    def check_gone(self) -> None:
        """Inserts while the window is gone: the text is copied, and typed nowhere."""
        desk = self._desk
        before = self._texts()
        desk.hands.tap(*SHORTCUT)
        desk.quorvane.wait_active()
        text = desk.change_text()
        self._take_away()
        desk.insert_button.press()
        wait_until(lambda: self._is_copied(text), "the text on the clipboard, for good")
        self._give_back(before)
        if self._texts() != before:
            raise AssertionError(f"typed somewhere: {self._texts()}, not {before}")

    def _is_copied(self, text: str) -> bool:
        targets = self._desk.clipboard.targets()
        if "UTF8_STRING" not in targets or _HINT in targets:
            return False
        return self._desk.clipboard.data("UTF8_STRING") == text.encode()

    def _texts(self) -> dict[str, str]:
        return {name: program.held_text() for name, program in self._desk.programs.items()}

    def _take_away(self) -> None:
        if self._case.window == "minimised":
            self._send("WM_CHANGE_STATE", [Xutil.IconicState, 0, 0, 0, 0])
            windows = self._desk.session.windows
            windows.wait(lambda: self._has("_NET_WM_STATE_HIDDEN"), "the window to be minimised")
        elif self._case.window == "closed":
            self._desk.forget(self._case.target)
        else:
            root = self._display.screen().root
            grabbed = root.grab_keyboard(False, X.GrabModeAsync, X.GrabModeAsync, X.CurrentTime)
            if grabbed != X.GrabSuccess:
                raise AssertionError(f"the keyboard cannot be grabbed: {grabbed}")

    def _give_back(self, before: dict[str, str]) -> None:
        if self._case.window == "closed":
            del before[self._case.target]
            return
        self._display.ungrab_keyboard(X.CurrentTime)
        self._display.sync()
        self._target.focus()
        self._target.wait_active()
        # Whatever was typed before this letter would stand before it.
        self._desk.hands.tap(Key.D)
        typed = before[self._case.target] + Layout(self._case.layout).letter
        self._target.wait_text(typed)
        before[self._case.target] = typed

    def _set_full_screen(self, action: int) -> None:
        atom = self._display.get_atom("_NET_WM_STATE_FULLSCREEN")
        self._send("_NET_WM_STATE", [action, atom, 0, _FROM_PAGER, 0])
        wanted = action == _ADD
        self._desk.session.windows.wait(
            lambda: self._has("_NET_WM_STATE_FULLSCREEN") == wanted, "the window to be resized"
        )

    def _has(self, state: str) -> bool:
        return state in self._desk.session.windows.states(self._target.window)

    def _send(self, name: str, values: list[int]) -> None:
        window = self._display.create_resource_object("window", self._target.window)
        message = ClientMessage(
            window=window, client_type=self._display.get_atom(name), data=(32, values)
        )
        mask = X.SubstructureRedirectMask | X.SubstructureNotifyMask
        self._display.screen().root.send_event(message, event_mask=mask)
        self._display.sync()
