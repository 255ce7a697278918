# SPDX-License-Identifier: MIT
"""A session in which everything that the cases need runs, started when it is first asked for."""

import json
import subprocess
import sys
from types import TracebackType

from harness.accessible import Accessible
from harness.clipboard import Clipboard
from harness.keys import Key
from harness.offer import Offer, plain_text
from harness.quorvane import Quorvane, settings_file
from harness.session import Session
from harness.waiting import wait_until

from .browsers import chromium, firefox
from .hands import Hands
from .layouts import Layout
from .office import Writer
from .programs import PROGRAMS, Program
from .terminals import MORE_TERMINALS, TERMINALS

_ZONES = ("Asia/Kolkata", "Asia/Tokyo", "Europe/Athens")
_STARTERS = PROGRAMS | TERMINALS | MORE_TERMINALS
_STARTERS |= {"writer": Writer, "chromium": chromium, "firefox": firefox}
_MODULES = {"PYTHONPATH": ":".join(sys.path)}

SELECTED: list[Offer] = plain_text("what the user has selected")
"""What PRIMARY holds all the time."""


class Desk:
    """The session, Quorvane with several zones in its text, and the user's hands."""

    def __init__(self, window_manager: str, locale: str) -> None:
        self.session = Session(None if window_manager == "none" else window_manager)
        self.wm = window_manager
        self.locale = locale
        self.programs: dict[str, Program] = {}
        """Those that run, by name."""
        self._turn = 0
        self._zones: list[str] = []
        self._layout: tuple[Layout, bool] | None = None

    def __enter__(self) -> "Desk":
        self.session.__enter__()
        try:
            self._furnish()
        except BaseException:
            self.session.__exit__(None, None, None)
            raise
        return self

    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        trace: TracebackType | None,
    ) -> None:
        for program in self.programs.values():
            program.stop()
        self.hands.close()
        self.clipboard.close()
        self.session.__exit__(kind, error, trace)

    def program(self, name: str) -> Program:
        """The program of a name, in front."""
        if name not in self.programs:
            self._start(name)
        self.programs[name].focus()
        self.programs[name].wait_active()
        return self.programs[name]

    def forget(self, name: str) -> None:
        """Ends a program; the next case that needs it starts it anew."""
        self.programs.pop(name).stop()

    def set_layout(self, layout: Layout, is_plugged: bool = False) -> None:
        """Gives the keyboards a layout, unless they have it."""
        if self._layout == (layout, is_plugged):
            return
        if is_plugged:
            layout.apply_to_all_but(self.session, self.hands)
        else:
            layout.apply(self.session, self.hands)
        self._layout = layout, is_plugged
        # It takes its own shortcuts anew, and would give the focus back late meanwhile.
        self.session.windows.let_manager_catch_up()

    def own(self, order: dict[str, object]) -> subprocess.Popen[bytes]:
        """Starts a program that owns the clipboard, and waits until it does."""
        process = self.session.start(
            [sys.executable, "-B", "-m", "soak.troubled_owner"],
            _MODULES,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
        )
        assert process.stdin and process.stdout
        process.stdin.write(json.dumps(order).encode())
        process.stdin.close()
        if process.stdout.readline().strip() != b"owned":
            raise RuntimeError(f"the clipboard is not owned:\n{self.session.logs()}")
        return process

    def clear_clipboard(self) -> None:
        """Leaves the clipboard without an owner."""
        self.session.stop(self.own({"selection": "CLIPBOARD", "offers": []}))
        self.clipboard.wait_empty()

    def change_text(self) -> str:
        """Adds a zone to Quorvane's text or takes one away; returns the text, of several lines."""
        before = self.quorvane.preview()
        zone = self._zones[self._turn % len(self._zones)]
        self._turn += 1
        wait_until(lambda: self._chip(zone), f"the chip {zone}").press()
        wait_until(lambda: self.quorvane.preview() != before, "another text")
        return self.quorvane.preview()

    def _start(self, name: str) -> None:
        self.set_layout(Layout("us"))
        self.hands.lock(0)
        program = self.programs[name] = _STARTERS[name](self.session)
        if program.by_control_v is None:
            return
        program.focus()
        program.wait_active()
        self.hands.tap(Key.CONTROL, Key.V)
        self.hands.tap(Key.D)
        program.wait_text(program.by_control_v + "d")

    def _furnish(self) -> None:
        # A key that is held while a busy machine takes its time would type itself again.
        self.session.run(["xset", "r", "off"])
        self.hands = Hands(self.session.display)
        self.clipboard = Clipboard(self.session)
        self.clipboard.own(SELECTED, "PRIMARY")
        settings = settings_file(self.session)
        settings.parent.mkdir(parents=True)
        settings.write_text(json.dumps({"favoriteTZs": _ZONES}))
        # The language of dates is another in each case; the controls keep their names.
        self.quorvane = Quorvane(
            self.session, LANG=f"{self.locale}.UTF-8", LC_MESSAGES="en_US.UTF-8"
        )
        self.quorvane.wait_active()
        self._zones = wait_until(self._suggestions, "the chips of zones")
        # One zone more than those that come and go: the text has at least two lines.
        self.change_text()
        self._zones.pop(0)
        self.quorvane.tree().find("Lines").press()
        wait_until(lambda: "\n" in self.quorvane.preview(), "a text of several lines")
        self.insert_button = self.quorvane.tree().find_role("push button", "Insert")
        self.quorvane.hide()

    def _suggestions(self) -> list[str]:
        showing = self.quorvane.tree().showing()
        names = [item.name for item in showing if item.description.endswith("Add")]
        return names if len(names) == len(_ZONES) else []

    def _chip(self, name: str) -> Accessible | None:
        for item in self.quorvane.tree().showing():
            if item.name == name and item.role == "push button":
                return item
        return None
