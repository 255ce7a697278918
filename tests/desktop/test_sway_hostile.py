# SPDX-License-Identifier: MIT
"""Programs of the same user that mean harm, under sway: nothing happens but what the user could do."""

from collections.abc import Sequence

import test_hostile
from harness.keys import Key
from harness.offer import Offer, plain_text
from harness.renamed_window import RenamedWindow
from harness.sway.case import SwayCase
from harness.targets import Editor
from harness.waiting import wait_until
from harness.wayland.clipboard_thief import ClipboardThief
from harness.wayland.endless_owner import EndlessOwner

_MINE = plain_text("the user's own")
_LOOT = plain_text("of the thief")
_ENDLESS = "image/png"
_MOST_TYPES = 256
"""As many as the program reads of one copy."""


class Clipboard(test_hostile.HostileCase, SwayCase):
    """Programs that take the clipboard, or have copied what no program could hold."""

    def thief(
        self, times: int, loot: Sequence[Offer] = _LOOT, greedy: bool = False
    ) -> ClipboardThief:
        thief = ClipboardThief(self.session.socket, loot, times, greedy)
        self.addCleanup(thief.close)
        return thief

    def endless(self, piece: bytes, pause: float = 0) -> EndlessOwner:
        owner = EndlessOwner(self.session.socket, _MINE, _ENDLESS, piece, pause)
        self.addCleanup(owner.close)
        return owner

    def active_editor(self) -> Editor:
        editor = self.editor()
        editor.wait_active()
        return editor

    def test_a_clipboard_that_is_taken_before_the_paste_stays_taken(self) -> None:
        editor = self.active_editor()
        self.clipboard.own(_MINE)
        thief = self.thief(times=1)
        self.summon(self.quorvane)
        text = self.quorvane.preview()
        self.keyboard.tap(Key.CONTROL, Key.RETURN)
        loot = _LOOT[0].data.decode()
        wait_until(lambda: editor.text() in (text, loot), "a text, ours or the thief's")
        # Its restore comes after that of the first was due.
        self.insert(self.quorvane, editor)
        wait_until(
            lambda: self.clipboard.data(_LOOT[0].target) == _LOOT[0].data, "the thief's text"
        )
        self.assertEqual(1, thief.thefts)

    def test_it_goes_on_while_the_clipboard_is_claimed_without_end(self) -> None:
        thief = self.thief(times=20_000, greedy=True)

        def quarrel() -> None:
            self.quorvane.action("copy")
            self.quorvane.action("insert")
            self.quorvane.action("copy")
            wait_until(lambda: thief.thefts > 3000, "a quarrel about the clipboard")

        self.assert_bears(quarrel)

    def test_copies_of_thousands_of_types_cost_bounded_memory(self) -> None:
        many = [Offer(f"application/x-type-{number}", b"x") for number in range(2000)]
        thief = self.thief(times=200, loot=many, greedy=True)

        def flood() -> None:
            self.quorvane.action("copy")
            wait_until(lambda: thief.thefts == 200, "all those copies")

        self.assert_bears(flood)

    def test_the_users_own_comes_back_among_thousands_of_types(self) -> None:
        many = [Offer(f"application/x-type-{number}", b"x") for number in range(2000)]
        editor = self.active_editor()
        self.clipboard.own([*_MINE, *many])
        self.insert(self.quorvane, editor)
        had = [offer.target for offer in _MINE]
        wait_until(lambda: self.clipboard.targets()[: len(had)] == had, "the user's clipboard")
        self.assertLessEqual(len(self.clipboard.targets()), _MOST_TYPES)

    def test_an_owner_that_writes_a_byte_at_a_time_costs_a_moment(self) -> None:
        editor = self.active_editor()
        self.endless(b"x", pause=0.1)
        self.insert(self.quorvane, editor)
        self.clipboard.wait_for(_MINE)

    def test_an_owner_that_writes_without_end_costs_memory_for_a_moment(self) -> None:
        editor = self.active_editor()
        owner = self.endless(bytes(1 << 16))
        before = self.memory.now()
        self.insert(self.quorvane, editor)
        self.clipboard.wait_for(_MINE)
        self.assertGreater(owner.written, 0)
        wait_until(lambda: self.memory.now() - before < test_hostile.LEFT, "the memory of before")


class Windows(test_hostile.HostileCase, SwayCase):
    """What other programs say about their windows, which the compositor passes on."""

    def test_a_window_that_is_renamed_without_end_costs_bounded_memory(self) -> None:
        window = RenamedWindow(self.session.display)
        self.addCleanup(window.close)
        self.session.windows.wait(
            lambda: self.session.windows.of_title(window.title), "the window"
        )

        def rename() -> None:
            window.rename(2000, 1000)
            self.session.windows.wait(
                lambda: self.session.windows.of_title(window.title), "its last title"
            )

        self.assert_bears(rename)
