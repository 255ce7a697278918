# SPDX-License-Identifier: MIT
"""Where a text goes, and what becomes of it where it cannot go anywhere."""

from harness.case import DesktopCase
from harness.keys import SHORTCUT, Key
from harness.notification_server import Notification, NotificationServer
from harness.offer import plain_text
from harness.quorvane import Quorvane
from harness.screen_lock import ScreenLock
from harness.status_item import StatusItem
from harness.targets import DialogField, Target, Terminal
from harness.tray import Tray
from harness.waiting import wait_until

_NO_WINDOW = "There was no window to type into. Paste with your usual keys."
_CAPTION = f"Copied instead. {_NO_WINDOW}"
_TOLD = Notification("Quorvane", "Copied instead", _NO_WINDOW, (), "org.quorvane.Quorvane")


class ChosenTarget(DesktopCase):
    """The text goes where the user works at that moment."""

    def test_what_the_user_works_in_while_the_panel_floats(self) -> None:
        first = self.editor("mousepad")
        second = self.editor("featherpad")
        quorvane = self.hidden_quorvane()
        first.focus()
        self.summon(quorvane)
        text = quorvane.preview()
        second.focus()
        insert = quorvane.tree().find_role("push button", "Insert")
        insert.press()
        second.wait_text(text)
        self.assertEqual("", first.text())

    def test_what_is_in_front_when_the_bus_asks_for_a_text(self) -> None:
        first = self.editor("mousepad")
        second = self.editor("featherpad")
        quorvane = self.hidden_quorvane()
        first.focus()
        self.enter_a_date(quorvane)
        text = self.insert(quorvane, first)
        second.focus()
        quorvane.action("insert")
        second.wait_text(text)
        self.assertEqual(text, first.text())

    def test_the_tooltip_of_insert_names_it(self) -> None:
        first = self.editor("mousepad")
        second = self.editor("featherpad")
        quorvane = self.hidden_quorvane()
        first.focus()
        self.summon(quorvane)
        insert = quorvane.tree().find_role("push button", "Insert")
        self.assertEqual("Insert into Mousepad (Ctrl+Return)", insert.description)
        second.focus()
        wait_until(
            lambda: insert.description.lower() == "insert into featherpad (ctrl+return)",
            f"the other name, not {insert.description}",
        )

    def test_the_dialog_of_a_window_that_fills_the_screen(self) -> None:
        dialog = DialogField(self.session)
        quorvane = self.hidden_quorvane()
        dialog.focus()
        self.insert(quorvane, dialog)


class LostTargetCase(DesktopCase):
    """Nothing is typed, the text is copied, and the user is told."""

    def setUp(self) -> None:
        super().setUp()
        self.server = NotificationServer(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.server.close)
        self.clipboard.own(plain_text("what the user had copied"))

    def summoned_over(self, target: Target) -> Quorvane:
        quorvane = self.hidden_quorvane()
        target.focus()
        self.summon(quorvane)
        return quorvane

    def expect_copy(self, quorvane: Quorvane) -> None:
        text = quorvane.preview()
        quorvane.tree().find_role("push button", "Insert").press()
        self.assertEqual(_TOLD, self.server.wait_shown())
        self.expect_on_clipboard(text)

    def expect_on_clipboard(self, text: str) -> None:
        self.assertEqual(text.encode(), self.clipboard.data("UTF8_STRING"))
        offered = [offer.target for offer in self.clipboard.contents()]
        self.assertNotIn("x-kde-passwordManagerHint", offered)


class LostTarget(LostTargetCase):
    """A target that has gone before Insert, or never was."""

    def test_a_window_that_is_closed_leaves_nothing_to_the_one_behind(self) -> None:
        behind = Terminal(self.session)
        editor = self.editor()
        quorvane = self.summoned_over(editor)
        self.session.stop(editor.process)
        windows = self.session.windows
        windows.wait(lambda: windows.of_process(editor.process.pid) is None, "the end of a window")
        self.expect_copy(quorvane)
        behind.focus()
        # What had been typed would have come before this.
        self.keyboard.tap(Key.D)
        behind.wait_text("d")

    def test_a_window_on_another_desktop(self) -> None:
        editor = self.editor()
        quorvane = self.summoned_over(editor)
        self.session.windows.show_desktop(1)
        self.expect_copy(quorvane)
        self.assertEqual("", editor.text())

    def test_no_window_at_all(self) -> None:
        quorvane = self.hidden_quorvane()
        self.summon(quorvane)
        self.expect_copy(quorvane)

    def test_a_second_notification_takes_the_place_of_the_first(self) -> None:
        quorvane = self.hidden_quorvane()
        for _ in range(2):
            self.server.clear()
            quorvane.action("insert")
            self.assertEqual(_TOLD, self.server.wait_shown())
        self.assertEqual(1, self.server.total)


class HiddenTarget(LostTargetCase):
    """What a window manager of X11 lets the user do besides."""

    def test_a_window_that_is_minimised(self) -> None:
        editor = self.editor()
        quorvane = self.summoned_over(editor)
        self.session.windows.minimise(editor.window)
        self.expect_copy(quorvane)
        self.assertEqual("", editor.text())

    def test_a_screen_lock_has_the_keyboard(self) -> None:
        editor = self.editor()
        quorvane = self.summoned_over(editor)
        text = quorvane.preview()
        with ScreenLock(self.session.display):
            quorvane.action("insert")
            self.assertEqual(_TOLD, self.server.wait_shown())
        self.assertEqual("", editor.text())
        self.expect_on_clipboard(text)


class NotificationServers(DesktopCase):
    """How the user is told where the server is not as it should be."""

    def test_without_one_a_caption_says_it_until_something_is_changed(self) -> None:
        quorvane = self.hidden_quorvane()
        quorvane.action("insert")
        self.expect_caption(quorvane)
        quorvane.tree().find_role("check box", "Date").press()
        wait_until(lambda: not self.shows_caption(quorvane), "the end of the caption")

    def test_without_one_the_icon_says_it_too(self) -> None:
        Tray(self.session).start()
        quorvane = self.hidden_quorvane()
        item = StatusItem(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(item.close)
        quorvane.action("insert")
        wait_until(lambda: _CAPTION in item.property("ToolTip"), "the words at the icon")

    def test_one_that_hangs_stops_nothing(self) -> None:
        server = self.server(silent=True)
        quorvane = self.hidden_quorvane()
        quorvane.action("insert")
        self.assertTrue(server.asked.wait(10))
        self.expect_caption(quorvane)

    def test_one_that_comes_later_shows_the_next(self) -> None:
        quorvane = self.hidden_quorvane()
        quorvane.action("insert")
        self.expect_caption(quorvane)
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        server = self.server()
        quorvane.action("insert")
        self.assertEqual(_TOLD, server.wait_shown())

    def server(self, silent: bool = False) -> NotificationServer:
        server = NotificationServer(
            self.session.environment["DBUS_SESSION_BUS_ADDRESS"], silent=silent
        )
        self.addCleanup(server.close)
        return server

    def expect_caption(self, quorvane: Quorvane) -> None:
        self.summon(quorvane)
        wait_until(lambda: self.shows_caption(quorvane), "the caption")

    def shows_caption(self, quorvane: Quorvane) -> bool:
        return quorvane.tree().shows("label", _CAPTION)
