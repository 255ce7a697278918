# SPDX-License-Identifier: MIT
"""A settings file that cannot be read is kept for its owner, and stops nothing."""

from harness.case import DesktopCase
from harness.quorvane import settings_file


class Settings(DesktopCase):
    """What lies in the user's settings directory when the program starts."""

    def test_a_truncated_file_is_moved_aside_and_the_program_runs(self) -> None:
        truncated = b'{"showInDock": true, "favoriteTZs": ["Europe/Ber'
        file = settings_file(self.session)
        file.parent.mkdir()
        file.write_bytes(truncated)
        quorvane = self.hidden_quorvane()
        kept = [path.read_bytes() for path in file.parent.glob("defaults.json.unreadable-*")]
        self.assertEqual([truncated], kept)
        self.summon(quorvane)
