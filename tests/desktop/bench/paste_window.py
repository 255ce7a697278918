# SPDX-License-Identifier: MIT
"""A window that does nothing but paste."""

import select
import time

from Xlib import X, Xutil
from Xlib.display import Display

from harness.keys import Key
from harness.session import Session
from harness.waiting import Deadline


class PasteWindow:
    """Has the keyboard, and takes the clipboard's text at Ctrl+V."""

    def __init__(self, session: Session) -> None:
        self._display = Display(session.display)
        screen = self._display.screen()
        self._window = screen.root.create_window(
            0,
            0,
            300,
            200,
            0,
            X.CopyFromParent,
            background_pixel=screen.white_pixel,
            event_mask=X.KeyPressMask,
        )
        self._clipboard = self._display.get_atom("CLIPBOARD")
        self._text = self._display.get_atom("UTF8_STRING")
        self._window.set_wm_name("paste window")
        self._window.set_wm_class("paste-window", "Paste-window")
        self._window.set_wm_hints(flags=Xutil.InputHint, input=1)
        self._window.map()
        self._display.sync()
        session.windows.wait(lambda: self._window.id in session.windows.shown(), "the window")
        session.windows.activate(self._window.id)

    def close(self) -> None:
        """Closes the window."""
        self._display.close()

    def wait_text(self) -> float:
        """Waits until a text has been pasted, and returns when it had."""
        deadline = Deadline("the pasted text")
        while True:
            if not self._display.pending_events():
                select.select([self._display], [], [], deadline.remaining())
            event = self._display.next_event()
            if event.type == X.KeyPress and event.detail == Key.V:
                self._window.convert_selection(self._clipboard, self._text, self._text, event.time)
                self._display.flush()
            elif event.type == X.SelectionNotify and event.property:
                text = self._window.get_full_property(self._text, X.AnyPropertyType)
                arrived = time.perf_counter()
                if text and len(text.value):
                    return arrived

    def is_clipboard_empty(self) -> bool:
        """Whether nobody owns the clipboard."""
        return self._display.get_selection_owner(self._clipboard) == X.NONE
