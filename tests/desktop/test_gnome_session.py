# SPDX-License-Identifier: MIT
"""That the tests' own hands and eyes are those of a user of GNOME."""

from harness.gnome.case import GnomeCase
from harness.gnome.terminal import Terminal
from harness.keys import Key


class Session(GnomeCase):
    """A session without Quorvane."""

    def test_keys_reach_a_window_of_wayland(self) -> None:
        terminal = Terminal(self.session)
        for key in (Key.D, Key.A, Key.T, Key.E):
            self.hands.tap(key)
        self.hands.tap(Key.SHIFT, Key.A)
        terminal.wait_text("dateA")

    def test_the_screen_can_be_seen(self) -> None:
        Terminal(self.session)
        file = self.session.root / "screen.png"
        self.shell.screenshot(file)
        self.assertEqual(b"\x89PNG", file.read_bytes()[:4])
