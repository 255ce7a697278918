# SPDX-License-Identifier: MIT
"""That a session of KWin is one: the user's keyboard, foreign programs and the clipboard."""

import wayland_tests
from harness.kwin.case import KwinCase


class Session(wayland_tests.Session, KwinCase):
    """What the other tests under KWin stand on."""
