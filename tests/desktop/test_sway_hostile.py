# SPDX-License-Identifier: MIT
"""Programs of the same user that mean harm, under sway: nothing happens but what the user could do."""

from collections.abc import Callable, Sequence

import test_hostile
from harness.offer import Offer
from harness.renamed_window import RenamedWindow
from harness.sway.case import SwayCase
from harness.waiting import wait_until
from harness.wayland.clipboard_thief import ClipboardThief
from harness.wayland.endless_owner import EndlessOwner
from test_hostile import LOOT, MINE

_ENDLESS = "image/png"
_MOST_TYPES = 256
"""As many as the program reads of one copy."""


class Clipboard(test_hostile.Clipboard, SwayCase):
    """Programs that take the clipboard, or have copied what no program could hold."""

    def thief(  # type: ignore[override]
        self,
        times: int,
        greedy: bool = False,
        loot: Sequence[Offer] = LOOT,
        pace: Callable[[], None] = lambda: None,
    ) -> ClipboardThief:
        thief = ClipboardThief(self.session.socket, loot, times, greedy, pace)
        self.addCleanup(thief.close)
        return thief

    def endless(self, piece: bytes, pause: float = 0) -> EndlessOwner:
        owner = EndlessOwner(self.session.socket, MINE, _ENDLESS, piece, pause)
        self.addCleanup(owner.close)
        return owner

    def wait_for_loot(self) -> None:
        # The thief marks what it has taken by another type.
        wait_until(lambda: self.clipboard.data(LOOT[0].target) == LOOT[0].data, "the thief's text")

    def test_copies_of_thousands_of_types_cost_bounded_memory(self) -> None:
        many = [Offer(f"application/x-type-{number}", b"x") for number in range(2000)]
        # A compositor ends the connection of a program that is behind by more than its buffer.
        thief = self.thief(times=200, loot=many, greedy=True, pace=self.quorvane.wait_caught_up)

        def flood() -> None:
            self.quorvane.action("copy")
            wait_until(lambda: thief.thefts == 200, "all those copies")

        self.assert_bears(flood)

    def test_the_users_own_comes_back_among_thousands_of_types(self) -> None:
        many = [Offer(f"application/x-type-{number}", b"x") for number in range(2000)]
        editor = self.active_editor()
        self.clipboard.own([*MINE, *many])
        self.insert(self.quorvane, editor)
        had = [offer.target for offer in MINE]
        wait_until(lambda: self.clipboard.targets()[: len(had)] == had, "the user's clipboard")
        self.assertLessEqual(len(self.clipboard.targets()), _MOST_TYPES)

    def test_an_owner_that_writes_a_byte_at_a_time_costs_a_moment(self) -> None:
        editor = self.active_editor()
        self.endless(b"x", pause=0.1)
        self.insert(self.quorvane, editor)
        self.clipboard.wait_for(MINE)

    def test_an_owner_that_writes_without_end_costs_memory_for_a_moment(self) -> None:
        editor = self.active_editor()
        owner = self.endless(bytes(1 << 16))
        before = self.memory.now()
        self.insert(self.quorvane, editor)
        self.clipboard.wait_for(MINE)
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
