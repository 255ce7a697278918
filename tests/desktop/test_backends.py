# SPDX-License-Identifier: MIT
"""Displays that have not all that X11 has: what works all the same, and what is said of the rest."""

from harness.case import DesktopCase
from harness.quorvane import Quorvane

_UNAVAILABLE = "Global shortcuts are not available on this desktop."


class Backends(DesktopCase):
    """The program where nobody can post keys, or knows the windows of others."""

    def assert_copies(self, quorvane: Quorvane) -> None:
        quorvane.wait_active()
        text = quorvane.preview()
        self.mouse.click(quorvane.tree().find_role("push button", "Copy"))
        self.clipboard.wait_data("UTF8_STRING", text.encode())

    def assert_says_that_there_is_no_shortcut(self, quorvane: Quorvane) -> None:
        quorvane.action("preferences")
        quorvane.tree().find(_UNAVAILABLE)

    def test_without_a_backend_the_program_copies(self) -> None:
        quorvane = Quorvane(self.session, QUORVANE_BACKEND="null")
        self.assert_copies(quorvane)
        self.assert_says_that_there_is_no_shortcut(quorvane)

    def test_on_xwayland_the_program_copies(self) -> None:
        quorvane = Quorvane(self.session, QUORVANE_BACKEND="", XDG_SESSION_TYPE="wayland")
        self.assert_copies(quorvane)
        self.assert_says_that_there_is_no_shortcut(quorvane)
