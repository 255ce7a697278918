# SPDX-License-Identifier: MIT
"""From the shortcut to the text in the application, under KWin."""

import wayland_tests
from harness.kwin.case import KwinCase


class Workflow(wayland_tests.Workflow, KwinCase):
    """Into programs of Wayland and of X11."""
