# SPDX-License-Identifier: MIT
"""An application that is too busy to paste in time gets the text, never the user's old clipboard."""

import os
import signal
import time

from harness.case import DesktopCase
from harness.delays import BEFORE_ACTIVATION, BEFORE_RESTORE
from harness.keys import INSERT, Key
from harness.offer import plain_text

# Seconds after the keys for which the application stands still; the restore lies before both.
_BUSY = (0.9, 1.5)


class SlowTarget(DesktopCase):
    """The application is stopped while the keys come, and goes on after the restore."""

    def test_a_busy_qt_editor_gets_the_text(self) -> None:
        self.insert_while_busy("featherpad")

    def test_a_busy_gtk_editor_gets_the_text(self) -> None:
        self.insert_while_busy("mousepad")

    def test_what_the_user_pastes_afterwards_is_the_users(self) -> None:
        editor = self.editor("featherpad")
        quorvane = self.hidden_quorvane()
        editor.focus()
        had = plain_text("the user's own")
        self.clipboard.own(had)
        text = self.insert(quorvane, editor)
        self.clipboard.wait_for(had)
        self.keyboard.tap(Key.CONTROL, Key.V)
        editor.wait_text(text + "the user's own")

    def insert_while_busy(self, name: str) -> None:
        editor = self.editor(name)
        quorvane = self.hidden_quorvane()
        editor.focus()
        had = plain_text("SECRET")
        arrived = ""
        for busy in _BUSY:
            self.clipboard.own(had)
            self.summon(quorvane)
            text = quorvane.preview()
            self.keyboard.tap(*INSERT)
            quorvane.wait_hidden()
            editor.wait_active()
            os.kill(editor.process.pid, signal.SIGSTOP)
            try:
                self.clipboard.wait_data("UTF8_STRING", text.encode())
                self.clipboard.wait_for(had)
                # How long the application stands still is what the test is about.
                time.sleep(busy - BEFORE_RESTORE)
            finally:
                os.kill(editor.process.pid, signal.SIGCONT)
            arrived += text
            editor.wait_text(arrived)
            self.clipboard.wait_for(had)
