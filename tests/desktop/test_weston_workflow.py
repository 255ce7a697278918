# SPDX-License-Identifier: MIT
"""On a compositor that lets programs do nothing beyond their own windows."""

from harness.accessible import State
from harness.case import DesktopCase
from harness.keys import INSERT, Key, Keyboard
from harness.notification_server import NotificationServer
from harness.quorvane import Quorvane
from harness.waiting import wait_until
from harness.weston import WestonSession

_NO_WAY_TO_TYPE = "This desktop does not let Quorvane type. Paste with your usual keys."


class Workflow(DesktopCase):
    """What is left is the clipboard, while the panel has the keyboard."""

    session: WestonSession

    def make_session(self) -> WestonSession:
        return WestonSession()

    def setUp(self) -> None:
        self.keyboard = Keyboard(self.session.display)
        self.addCleanup(self.keyboard.close)
        self.typed = self.session.root / "typed"
        self.typed.touch()
        command = ["sh", "-c", 'stty raw -echo; exec cat >"$0"', str(self.typed)]
        self.session.start(["foot", *command])
        wait_until(self.types, "a terminal with the keyboard", interval=0.1)
        self.quorvane = Quorvane(self.session)
        tree = self.quorvane.tree()
        wait_until(
            lambda: any(found.has(State.FOCUSED) for found in tree.showing()),
            "a panel with the keyboard",
        )

    def test_copy_is_pasted_by_the_user(self) -> None:
        text = self.quorvane.preview()
        self.keyboard.tap(Key.CONTROL, Key.C)
        self.keyboard.tap(Key.ESCAPE)
        self.expect_pasted(text)

    def test_insert_copies_and_says_that_it_cannot_type(self) -> None:
        server = NotificationServer(self.session.bus.address)
        self.addCleanup(server.close)
        text = self.quorvane.preview()
        self.keyboard.tap(*INSERT)
        told = server.wait_shown()
        self.assertEqual(("Copied instead", _NO_WAY_TO_TYPE), (told.title, told.body))
        self.expect_pasted(text)

    def types(self) -> bool:
        self.keyboard.tap(Key.A)
        return bool(self.typed.read_text())

    def expect_pasted(self, text: str) -> None:
        before = self.typed.read_text()
        wait_until(lambda: self.types() and self.typed.read_text() != before, "the terminal again")
        self.keyboard.tap(Key.CONTROL, Key.SHIFT, Key.V)
        wait_until(lambda: self.typed.read_text().endswith(text), "the text in the terminal")
