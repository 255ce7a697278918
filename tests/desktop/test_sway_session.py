# SPDX-License-Identifier: MIT
"""That a session of sway is one: the user's keyboard, foreign programs and the clipboard."""

import wayland_tests
from harness.sway.case import SwayCase


class Session(wayland_tests.Session, SwayCase):
    """What the other tests under sway stand on."""
