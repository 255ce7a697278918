# SPDX-License-Identifier: MIT
"""From the key for Insert until the text is in another program."""

import time

from harness.keys import INSERT, SHORTCUT, Keyboard
from harness.session import Session
from harness.waiting import wait_until

from .figures import PRODUCT, Figures
from .observer import Observer
from .paste_window import PasteWindow
from .process import end, wait_quiet
from .programs import QUORVANE_HIDDEN, start

_MILLI = 1000


def measure_insertion(session: Session, figures: Figures, rounds: int) -> None:
    """Into a window that asks for the clipboard as soon as it gets the key for pasting."""
    target = PasteWindow(session)
    process, _ = start(session, QUORVANE_HIDDEN)
    wait_quiet(process.pid)
    keyboard = Keyboard(session.display)
    observer = Observer(session.display)
    for _ in range(rounds):
        keyboard.tap(*SHORTCUT)
        observer.wait_shown()
        began = time.perf_counter()
        keyboard.tap(*INSERT)
        arrived = target.wait_text()
        figures.add("Insert to text", PRODUCT, "ms", _MILLI * (arrived - began))
        observer.wait_hidden()
        # Giving back the clipboard is a part of the insertion that nobody waits for.
        wait_until(target.is_clipboard_empty, "the clipboard to be as it was")
    observer.close()
    keyboard.close()
    end(process.pid)
    process.wait(10)
    target.close()
