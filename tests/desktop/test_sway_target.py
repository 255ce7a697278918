# SPDX-License-Identifier: MIT
"""Where a text goes under sway, and what becomes of it where it cannot go anywhere."""

import test_target
from harness.sway.case import SwayCase


class ChosenTarget(test_target.ChosenTarget, SwayCase):
    """The text goes where the user works at that moment."""


class LostTarget(test_target.LostTarget, SwayCase):
    """Nothing is typed, the text is copied, and the user is told."""
