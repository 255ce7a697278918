# SPDX-License-Identifier: MIT
"""How times and memory grow with what the desktop holds."""

import subprocess
import time
from contextlib import closing

from Xlib import X, Xutil
from Xlib.display import Display

from harness.clipboard import Clipboard
from harness.keys import INSERT, SHORTCUT, Keyboard
from harness.offer import Offer
from harness.session import Session
from harness.waiting import wait_until

from .figures import PRODUCT, Figures
from .observer import Observer
from .paste_window import PasteWindow
from .process import end, memory, wait_quiet
from .programs import BARE_SHORTCUT, BUILD, QUORVANE_HIDDEN, start
from .shows import Shows

_MILLI = 1000
_KILO = 1024
_MEGABYTES = (0, 1, 10, 50, 200)
_WINDOWS = (0, 250, 500, 1000, 2000)
_SHOWS = 5


def measure_growth(figures: Figures) -> None:
    """Windows, clipboards, and inside the program zones, favourites and patterns."""
    for count in _WINDOWS:
        _show_among(count, figures)
    for megabytes in _MEGABYTES:
        _insert_over(megabytes, figures)
    subprocess.run(
        [str(BUILD / "quorvane-bench"), "--benchmark_filter=growth", "--benchmark_min_time=0.1"],
        check=True,
    )


def _show_among(count: int, figures: Figures) -> None:
    # openbox takes more than ten seconds to show a window among two thousand.
    with Session("xfwm4") as session, closing(Display(session.display)) as crowd:
        root = crowd.screen().root
        for number in range(count):
            window = root.create_window(
                number % 1000, number % 700, 80, 60, 0, X.CopyFromParent
            )
            window.set_wm_class("crowd", "Crowd")
            # No window manager is quick at bringing so many to the screen.
            window.set_wm_hints(flags=Xutil.StateHint, initial_state=Xutil.IconicState)
            window.map()
        crowd.sync()
        session.windows.wait(
            lambda: len(session.windows.shown()) == count, f"{count} windows", 120
        )
        measured = Figures()
        with closing(Shows(session, measured)) as shows:
            shows.measure([BARE_SHORTCUT, QUORVANE_HIDDEN], 1, _SHOWS)
        for figure in measured:
            figures.add(
                f"{figure.measure}, {count} windows", figure.program, "ms", *figure.samples
            )


def _insert_over(megabytes: int, figures: Figures) -> None:
    """An insertion while the clipboard holds a text of that size."""
    what = f", {megabytes} MB in the clipboard"
    with Session("openbox") as session, closing(PasteWindow(session)) as target:
        process, _ = start(session, QUORVANE_HIDDEN)
        wait_quiet(process.pid)
        before = memory(process.pid)
        clipboard = Clipboard(session)
        owner = clipboard.own([Offer("UTF8_STRING", b"x" * (megabytes * _KILO * _KILO))])
        wait_quiet(owner.pid)
        taken = _insert(session, target)
        figures.add(f"Insert to text{what}", PRODUCT, "ms", _MILLI * taken)
        wait_until(lambda: owner.poll() is not None, "the clipboard to be taken")
        wait_quiet(process.pid)
        after = memory(process.pid)
        kept = (after.private_dirty - before.private_dirty) / _KILO
        figures.add(f"memory kept{what}", PRODUCT, "MB", kept)
        end(process.pid)
        process.wait(10)


def _insert(session: Session, target: PasteWindow) -> float:
    observer, keyboard = Observer(session.display), Keyboard(session.display)
    with closing(observer), closing(keyboard):
        keyboard.tap(*SHORTCUT)
        observer.wait_shown()
        began = time.perf_counter()
        keyboard.tap(*INSERT)
        return target.wait_text() - began
