# SPDX-License-Identifier: MIT
"""A settings file that cannot be read is kept for its owner, and stops nothing."""

import json

from harness.case import DesktopCase
from harness.quorvane import Quorvane, settings_file
from harness.waiting import wait_until


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

    def test_a_shortcut_that_is_none_is_left_in_the_file_and_the_default_one_works(self) -> None:
        stored = '{"hotKeyCode": 99999, "hotKeyModifiers": 256}'
        file = settings_file(self.session)
        file.parent.mkdir()
        file.write_text(stored)
        quorvane = self.hidden_quorvane()
        self.assertIn("hotKeyCode 99999", self.session.logs())
        self.summon(quorvane)
        self.assertEqual(99999, json.loads(file.read_text())["hotKeyCode"])

    def test_what_is_remembered_comes_back_at_the_next_start(self) -> None:
        file = settings_file(self.session)
        file.parent.mkdir()
        stored = {
            "rememberFormatAndZones": True,
            "formatPreset": "ISO 8601",
            "multiZoneLayout": "Diagonal",
            "selectedTZs": ["Asia/Tokyo", "Moon/Tycho"],
        }
        file.write_text(json.dumps(stored))
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.assertRegex(quorvane.preview(), r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\+09:00$")
        for rubbish in ("Diagonal", "Moon/Tycho"):
            self.assertEqual(1, self.session.logs().count(rubbish))
        quorvane.tree().find_role("check box", "Time").press()
        wait_until(lambda: "T" not in quorvane.preview(), "a date alone")
        quorvane.quit()
        again = Quorvane(self.session)
        again.wait_active()
        self.assertRegex(again.preview(), r"^\d{4}-\d\d-\d\d$")
