# SPDX-License-Identifier: MIT
"""Where a text goes under KWin, and what becomes of it where it cannot go anywhere."""

import test_target
from harness.keys import INSERT, Key
from harness.kwin.case import KwinCase
from harness.kwin.session import KwinSession
from harness.notification_server import NotificationServer
from harness.quorvane import Quorvane
from harness.waiting import wait_until

_TEXT = "text/plain;charset=utf-8"

_END_OF_A_CONNECTION = r" is lost|X11 connection broke"


class LostTarget(test_target.LostTarget, KwinCase):
    """Nothing is typed, the text is copied, and the user is told."""


class Panel(KwinCase):
    """A window of XWayland, as the desktop shows it."""

    def test_it_is_above_on_all_desktops_and_out_of_the_taskbar(self) -> None:
        quorvane = Quorvane(self.session)
        panel = quorvane.wait_active()
        windows = self.session.windows
        self.assertTrue(windows.is_above(panel))
        self.assertTrue(windows.is_on_all_desktops(panel))
        self.assertFalse(windows.is_in_taskbar(panel))


class NotInstalled(KwinCase):
    """Without a desktop entry KWin lets nobody type."""

    def make_session(self) -> KwinSession:
        return KwinSession(is_installed=False)

    def test_the_text_is_copied_instead(self) -> None:
        notifications = NotificationServer(self.session.bus.address)
        self.addCleanup(notifications.close)
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.summon(quorvane)
        text = quorvane.preview()
        self.keyboard.tap(*INSERT)
        self.assertIn("does not let Quorvane type", notifications.wait_shown().body)
        self.clipboard.wait_data(_TEXT, text.encode())
        self.keyboard.tap(Key.D)
        editor.wait_text("d")


class Locked(KwinCase):
    """Behind a locked screen KWin tells of the same windows as before."""

    def make_session(self) -> KwinSession:
        return KwinSession(has_lock=True)

    def test_nothing_is_typed_into_the_lock(self) -> None:
        notifications = NotificationServer(self.session.bus.address)
        self.addCleanup(notifications.close)
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.session.lock()
        quorvane.action("insert")
        self.assertIn("There was no window", notifications.wait_shown().body)
        self.assertEqual("", editor.text())
        wait_until(lambda: self.clipboard.data(_TEXT), "the text on the clipboard")


class End(KwinCase):
    """What becomes of the program when KWin has gone."""

    def test_it_ends_and_says_so_in_each_loss_once(self) -> None:
        quorvane = Quorvane(self.session, QT_LOGGING_RULES="quorvane.*=false")
        quorvane.wait_active()
        self.session.kill_compositor()
        self.assertEqual(1, quorvane.process.wait(10))
        # Ours to KWin and to XWayland, and Qt's: whichever breaks first ends the program.
        log = self.session.log("quorvane")
        self.assertRegex(log, _END_OF_A_CONNECTION)
        lines = [line for line in log.splitlines() if line]
        self.assertEqual(len(set(lines)), len(lines))
