# SPDX-License-Identifier: MIT
"""Text that the user drags from another program, under sway."""

import json
import signal

from harness.drag_source import TEXT, DragSource
from harness.keys import SHORTCUT
from harness.quorvane import Quorvane, settings_file
from harness.sway.case import SwayCase
from harness.waiting import wait_until

_PATTERN = {
    "shortcutHintDismissed": True,
    "rememberFormatAndZones": True,
    "formatPreset": "Custom…",
    "customFormat": "yyyy",
}


class Dragging(SwayCase):
    """Over the field of the custom format, with an editor behind the panel."""

    def setUp(self) -> None:
        super().setUp()
        self.source = DragSource(self.session)
        self.target = self.editor()
        file = settings_file(self.session)
        file.parent.mkdir(parents=True)
        file.write_text(json.dumps(_PATTERN))
        self.quorvane = Quorvane(self.session)
        self.quorvane.wait_active()
        self.field = self.quorvane.tree().find_role("text", "Custom format")

    def begin_drag(self) -> None:
        drags = self.source.log().count("begun")
        left, top, _width, height = self.session.windows.frame(self.source.window)
        steps = iter(range(left + 10, left + 200, 5))
        middle = top + height // 2

        def has_begun() -> bool:
            self.mouse.move_to(next(steps), middle)
            return self.source.log().count("begun") > drags

        self.mouse.move_to(left + 5, middle)
        self.mouse.press()
        wait_until(has_begun, "the drag to begin", interval=0.05)

    def move_over_field(self) -> None:
        left, top, width, height = self.field.extents
        for x in range(left + 5, left + width // 2, 5):
            self.mouse.move_to(x, top + height // 2)

    def test_a_field_refuses_it_unread_and_another_program_takes_it(self) -> None:
        self.begin_drag()
        self.move_over_field()
        self.mouse.release()
        self.source.wait_log("begun", "failed", "ended")
        self.begin_drag()
        self.move_over_field()
        left, top, width, height = self.session.windows.frame(self.target.window)
        self.mouse.move_to(left + width - 20, top + height // 2)
        self.mouse.move_to(left + width - 25, top + height // 2)
        wait_until(lambda: "accepted" in self.source.log(), "the editor to accept the text")
        self.mouse.release()
        self.target.wait_text(TEXT)
        self.assertEqual("yyyy", self.field.text)

    def test_a_program_that_hangs_holds_nothing_up(self) -> None:
        self.begin_drag()
        self.source.process.send_signal(signal.SIGSTOP)
        self.addCleanup(self.source.process.send_signal, signal.SIGCONT)
        self.move_over_field()
        self.mouse.release()
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_hidden()
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_active()
        self.assertEqual("yyyy", self.field.text)
