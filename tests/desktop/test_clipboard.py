# SPDX-License-Identifier: MIT
"""What the user had copied is there again after an insertion, byte by byte."""

import os
import struct
import time

from harness.case import DesktopCase
from harness.delays import UNTIL_PASTE
from harness.keys import INSERT
from harness.offer import Offer, plain_text

_MEGABYTE = 1_000_000

# Seconds after which a silent owner is cut off, and one that is not silent all the time.
_SILENCE = 0.3
_LONGEST_SAVE = 1.0


class Clipboard(DesktopCase):
    """The clipboard of another program, before and after an insertion."""

    def test_an_image_comes_back_in_all_its_types(self) -> None:
        picture = os.urandom(90_000)
        self.assert_survives(
            [
                Offer("image/png", picture),
                Offer("image/bmp", os.urandom(200_000)),
                Offer("image/x-icon", os.urandom(4_286)),
                Offer("image/jpeg", os.urandom(30_001)),
                Offer("application/x-qt-image", picture),
                Offer("text/html", b'<img src="picture.png">'),
                Offer("text/x-moz-url", "https://example.org/".encode("utf-16-le")),
                Offer("_NETSCAPE_URL", b"https://example.org/"),
                Offer("application/x-empty", b""),
            ]
        )

    def test_two_files_come_back_as_files(self) -> None:
        files = b"file:///home/user/a%20b.txt\r\nfile:///home/user/c.txt\r\n"
        self.assert_survives(
            [
                Offer("x-special/gnome-copied-files", b"copy\nfile:///home/user/a%20b.txt"),
                Offer("text/uri-list", files),
                *plain_text("/home/user/a b.txt\n/home/user/c.txt"),
                Offer("application/x-kde-cutselection", b"0"),
            ]
        )

    def test_six_megabytes_come_back(self) -> None:
        self.assert_survives([*plain_text("large"), Offer("image/tiff", os.urandom(6 * _MEGABYTE))])

    def test_data_in_wider_units_come_back(self) -> None:
        words = struct.pack("=5I", 0, 1, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF)
        self.assert_survives(
            [
                Offer("x-test/words", words, "INTEGER", 32),
                Offer("x-test/halves", struct.pack("=3H", 1, 0x8000, 0xFFFF), "CARDINAL", 16),
                Offer("x-test/many-words", os.urandom(_MEGABYTE), "INTEGER", 32),
                *plain_text("beside them"),
            ]
        )

    def test_an_empty_clipboard_is_empty_again(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.insert(quorvane, editor)
        self.clipboard.wait_empty()

    def test_the_passing_text_asks_clipboard_histories_to_look_away(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.summon(quorvane)
        self.keyboard.tap(*INSERT)
        self.clipboard.wait_data("x-kde-passwordManagerHint", b"secret")

    def test_an_owner_that_hangs_costs_a_third_of_a_second_and_freezes_nothing(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.clipboard.own(plain_text("never said"), silent=["TARGETS"])
        tree = quorvane.tree()
        self.summon(quorvane)
        text = quorvane.preview()
        began = time.monotonic()
        self.keyboard.tap(*INSERT)
        slowest_answer = 0.0
        while editor.text() != text:
            asked = time.monotonic()
            self.assertLess(asked - began, UNTIL_PASTE + _LONGEST_SAVE, "the owner was not cut off")
            tree.children()
            slowest_answer = max(slowest_answer, time.monotonic() - asked)
        self.assertGreater(time.monotonic() - began, UNTIL_PASTE + _SILENCE, "the owner was not waited for")
        # Questions follow close on each other: a freeze would hold one up for nearly all its time.
        self.assertLess(slowest_answer, _SILENCE - 0.05)
        self.clipboard.wait_empty()

    def test_what_was_read_before_an_owner_hung_comes_back(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        had = plain_text("said in time")
        self.clipboard.own([Offer("image/png", b"never said"), *had], silent=["image/png"])
        self.insert(quorvane, editor)
        self.clipboard.wait_for(had)

    def assert_survives(self, had: list[Offer]) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.clipboard.own(had)
        self.insert(quorvane, editor)
        self.clipboard.wait_for(had)
