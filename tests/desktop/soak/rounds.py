# SPDX-License-Identifier: MIT
"""One case: the situation is set up, and a text inserted twice."""

import time
from collections.abc import Iterator
from contextlib import ExitStack, contextmanager

from harness.keys import INSERT, SHORTCUT, Key
from harness.waiting import Timeout

from .axes import Case
from .clipboard_state import ClipboardState
from .desk import SELECTED, Desk
from .hands import LOCK_MASK, NUM_MASK, SHIFT_MASK
from .layouts import Layout
from .programs import Program
from .report import STAGES, Report
from .window_state import WindowState

_ROUNDS = 2
_HELD = {
    "shift": Key.SHIFT,
    "alt": Key.ALT,
    "super": Key.SUPER,
    "ctrl": Key.CONTROL,
    "altgr": Key.ALT_GR,
    "return": Key.RETURN,
}
_LOCKED = {"caps-lock": LOCK_MASK, "num-lock": NUM_MASK, "sticky-shift": SHIFT_MASK}


class CopiedInstead(AssertionError):
    """The window manager gave the focus back too late, and the text was copied, as it should be."""


class CaseRun:
    """Runs one case at a desk; any exception is its failure."""

    def __init__(self, desk: Desk, case: Case, report: Report) -> None:
        self._desk = desk
        self._case = case
        self._report = report
        self._layout = Layout(case.layout)

    def run(self) -> None:
        """Runs it to its end, and leaves the desk as it was."""
        with ExitStack() as undo:
            target = self._desk.program(self._case.target)
            window = undo.enter_context(WindowState(self._desk, self._case, target))
            clipboard = undo.enter_context(ClipboardState(self._desk, self._case.clipboard))
            undo.callback(self._desk.hands.lock, 0)
            if window.is_gone:
                self._give_layout()
                window.check_gone()
                self._report.end_round(self._case)
                return
            for _ in range(_ROUNDS):
                self._insert(target, clipboard)
                self._report.end_round(self._case)

    def _insert(self, target: Program, clipboard: ClipboardState) -> None:
        desk, case, hands = self._desk, self._case, self._desk.hands
        target.focus()
        target.wait_active()
        before = target.held_text()
        self._prepare_keyboard()
        with self._timed(STAGES[0]):
            hands.tap(*SHORTCUT)
            desk.quorvane.wait_active()
        text = desk.change_text()
        if case.change == "between":
            self._give_layout()
        arrived = before + text.replace("\n", target.line_end)
        with ExitStack() as held, self._timed(STAGES[1]):
            self._press_insert(held)
            self._wait_arrived(target, arrived, text)
        with self._timed(STAGES[2]):
            clipboard.wait_restored()
        clipboard.check()
        desk.clipboard.wait_for(SELECTED, "PRIMARY")
        target.wait_active()
        # Arrived twice, or a modifier that is stuck, would show now.
        hands.tap(Key.D)
        target.wait_text(*(arrived + letter for letter in self._letters(target)))

    def _wait_arrived(self, target: Program, arrived: str, text: str) -> None:
        try:
            target.wait_text(arrived)
        except Timeout as timeout:
            clipboard = self._desk.clipboard
            is_passing = "x-kde-passwordManagerHint" in clipboard.targets()
            if not is_passing and clipboard.data("UTF8_STRING") == text.encode():
                raise CopiedInstead("the focus came back late") from timeout
            raise

    def _prepare_keyboard(self) -> None:
        if self._case.change == "between":
            other = "fr" if self._case.layout != "fr" else "us"
            self._desk.set_layout(Layout(other))
        else:
            self._give_layout()
        self._desk.hands.lock(_LOCKED.get(self._case.keys, 0))

    def _give_layout(self) -> None:
        self._desk.set_layout(self._layout, is_plugged=self._case.change == "plugged")
        self._desk.hands.lock(_LOCKED.get(self._case.keys, 0))

    def _press_insert(self, held: ExitStack) -> None:
        hands, keys = self._desk.hands, self._case.keys
        if keys in ("return", "ctrl"):
            others = [key for key in INSERT if key != _HELD[keys]]
            if keys == "return":
                with hands.held(*others):
                    held.enter_context(hands.held(_HELD[keys]))
            else:
                held.enter_context(hands.held(_HELD[keys]))
                hands.tap(*others)
        elif keys in _HELD:
            held.enter_context(hands.held(_HELD[keys]))
            self._desk.insert_button.press()
        elif keys == "sticky-shift":
            self._desk.insert_button.press()
        else:
            hands.tap(*INSERT)

    def _letters(self, target: Program) -> set[str]:
        letters = {"d" if self._case.change == "plugged" else self._layout.letter}
        if target.forgets_locks and self._layout.group > 0:
            letters.add("d")
        if self._case.keys in ("caps-lock", "sticky-shift"):
            capitals = {letter.upper() for letter in letters}
            return capitals | letters if target.forgets_locks else capitals
        return letters

    @contextmanager
    def _timed(self, stage: str) -> Iterator[None]:
        began = time.monotonic()
        yield
        self._report.time(self._case, stage, time.monotonic() - began)
