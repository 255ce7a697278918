# SPDX-License-Identifier: MIT
"""The line for sway's configuration that the preferences offer."""

import json
from pathlib import Path

from harness.keys import Key
from harness.quorvane import Quorvane, settings_file
from harness.sway.case import SwayCase
from harness.sway.ipc import SwayIpc
from harness.waiting import wait_until

_KEY_K = 40
_ALT_AND_SUPER = 0x900


class Binding(SwayCase):
    """A user who has recorded another shortcut than the one in sway's file."""

    def setUp(self) -> None:
        super().setUp()
        file = settings_file(self.session)
        file.parent.mkdir()
        file.write_text(json.dumps({"hotKeyCode": _KEY_K, "hotKeyModifiers": _ALT_AND_SUPER}))
        self.sway = SwayIpc(Path(self.session.environment["SWAYSOCK"]))
        self.addCleanup(self.sway.close)

    def test_the_line_binds_the_recorded_shortcut(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        quorvane.action("preferences")
        quorvane.wait_hidden()
        self.sway.command(wait_until(lambda: self._line(quorvane), "the line for sway"))
        self.keyboard.tap(Key.ALT, Key.SUPER, Key.K)
        quorvane.wait_active()
        self.keyboard.tap(Key.ALT, Key.SUPER, Key.K)
        quorvane.wait_hidden()

    def _line(self, quorvane: Quorvane) -> str | None:
        shown = (part.name for part in quorvane.tree().showing())
        return next((name for name in shown if name.startswith("bind")), None)
