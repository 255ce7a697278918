# SPDX-License-Identifier: MIT
"""Tests that every compositor of Wayland has to pass, each in its own session."""

import os
from pathlib import Path

import test_workflow
from harness.keys import INSERT, SHORTCUT, Key
from harness.offer import Offer, plain_text
from harness.quorvane import Quorvane
from harness.rounds import ROUNDS
from harness.targets import Terminal
from harness.waiting import wait_until
from harness.wayland.case import WaylandCase
from harness.wayland.connection import WaylandConnection

_REST = 60_000  # questions that the compositor answers meanwhile: some seconds


class FocusGivenBack(WaylandCase):
    """The panel that is hidden by its keys."""

    def test_hidden_by_its_keys_it_gives_the_focus_back(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        for _ in range(5):
            self.summon(quorvane)
            self.keyboard.tap(*SHORTCUT)
            quorvane.wait_hidden()
            editor.wait_active()


class Session(WaylandCase):
    """What all other tests stand on."""

    def test_keys_reach_programs_of_wayland_and_of_x11(self) -> None:
        editor = self.editor()
        self.keyboard.tap(Key.SHIFT, Key.A)
        self.keyboard.tap(Key.B)
        editor.wait_text("Ab")
        terminal = Terminal(self.session)
        self.keyboard.tap(Key.D)
        terminal.wait_text("d")
        editor.focus()
        self.keyboard.tap(Key.C)
        editor.wait_text("Abc")

    def test_the_clipboard_holds_what_a_program_copied(self) -> None:
        had = [Offer("image/png", os.urandom(3_000_000)), *plain_text("beside it")]
        self.clipboard.own(had)
        self.clipboard.wait_for(had)


class Workflow(test_workflow.Workflow, WaylandCase):
    """Into programs of Wayland and of X11."""

    rounds = ROUNDS

    def test_a_terminal_of_x11_pastes_what_is_marked(self) -> None:
        terminal = Terminal(self.session)
        quorvane = self.hidden_quorvane()
        terminal.wait_active()
        marked = plain_text("what the user had marked")
        self.clipboard.own(marked, "PRIMARY")
        self.insert(quorvane, terminal)
        self.clipboard.wait_for(marked, "PRIMARY")

    def test_the_shortcut_in_the_middle_of_typing_costs_no_letter(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        for key in (Key.A, Key.B):
            self.keyboard.tap(key)
        self.summon(quorvane)
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        editor.wait_active()
        self.keyboard.tap(Key.C)
        editor.wait_text("abc")

    def test_a_text_of_several_lines_arrives_as_it_is(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.summon(quorvane)
        before = quorvane.preview()
        for zone in ("Tokyo", "Berlin"):
            quorvane.tree().find_role("push button", zone).press()
        quorvane.tree().find_role("radio button", "Lines").press()
        text = wait_until(
            lambda: len(quorvane.preview().splitlines()) == 3 and quorvane.preview(),
            f"three lines instead of {before}",
        )
        self.keyboard.tap(*INSERT)
        editor.wait_text(text)


class Clipboard(WaylandCase):
    """The clipboard of another program, before and after an insertion."""

    def test_four_types_and_three_megabytes_come_back(self) -> None:
        had = [
            Offer("image/png", os.urandom(3_000_000)),
            Offer("text/html", b"<p>a</p>"),
            Offer("text/plain;charset=utf-8", "süß".encode()),
            Offer("application/x-empty", b""),
        ]
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.clipboard.own(had)
        self.insert(quorvane, editor)
        self.clipboard.wait_for(had)

    def test_an_empty_clipboard_is_empty_again(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.insert(quorvane, editor)
        self.clipboard.wait_empty()

    def test_a_copy_stays_when_the_panel_is_closed(self) -> None:
        quorvane = self.hidden_quorvane()
        self.clipboard.own(plain_text("what the user had copied"))
        self.summon(quorvane)
        text = quorvane.preview()
        quorvane.tree().find_role("push button", "Copy").press()
        self.clipboard.wait_data("text/plain;charset=utf-8", text.encode())
        quorvane.action("toggle")
        quorvane.wait_hidden()
        self.assertEqual(text.encode(), self.clipboard.data("text/plain;charset=utf-8"))


class Idle(WaylandCase):
    """A program that nobody uses takes no time from anybody."""

    def test_it_sleeps_while_it_is_hidden_and_while_its_panel_is_left_alone(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.expect_asleep(quorvane)
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        self.expect_asleep(quorvane)

    def expect_asleep(self, quorvane: Quorvane) -> None:
        """Waits until the program has rested once, while the compositor worked."""
        connection = WaylandConnection(self.session.socket)
        self.addCleanup(connection.close)

        def rests() -> bool:
            before = _wakeups(quorvane.process.pid)
            for _ in range(_REST):
                connection.settle()
            return _wakeups(quorvane.process.pid) == before

        wait_until(rests, "a rest without a wakeup", seconds=30)


def _wakeups(pid: int) -> dict[str, list[str]]:
    """How often each thread of a process has given the processor away, or had it taken."""
    threads = {}
    for thread in Path(f"/proc/{pid}/task").iterdir():
        lines = (thread / "status").read_text().splitlines()
        threads[thread.name] = [line for line in lines if "ctxt_switches" in line]
    return threads
