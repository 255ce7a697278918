# SPDX-License-Identifier: MIT
"""What the user had copied is there again after an insertion under KWin, byte by byte."""

import test_clipboard_order
import wayland_tests
from harness.kwin.case import KwinCase


class Clipboard(wayland_tests.Clipboard, KwinCase):
    """The clipboard of another program, before and after an insertion."""


class ClipboardOrder(test_clipboard_order.ClipboardOrder, KwinCase):
    """Insertions, copies and clipboard managers, one after the other and in a hurry."""
