# SPDX-License-Identifier: MIT
"""What the test cases under GNOME have in common."""

import sys
import unittest
from collections.abc import Sequence

from ..case import troubles
from .session import GnomeSession


class GnomeCase(unittest.TestCase):
    """A fresh GNOME session for each test; to be run by harness.sandbox."""

    maxDiff = None
    session: GnomeSession

    extensions: Sequence[str] = ()
    """What the shell of these tests is extended by."""

    def run(self, result: unittest.TestResult | None = None) -> unittest.TestResult | None:
        """Runs the test inside its session, and shows the session's logs if it fails."""
        with GnomeSession(self.extensions) as self.session:
            before = troubles(result)
            outcome = super().run(result)
            if troubles(result) > before:
                print(self.session.logs(), file=sys.stderr)
        return outcome

    def setUp(self) -> None:
        self.shell = self.session.shell
        self.hands = self.session.hands
