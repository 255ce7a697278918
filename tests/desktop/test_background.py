# SPDX-License-Identifier: MIT
"""In a sandbox: the start at login is the portal's to grant."""

from harness.accessible import Accessible, State
from harness.background_portal import BackgroundPortal
from harness.case import DesktopCase
from harness.flatpak import in_flatpak
from harness.message_bus import MessageBus
from harness.quorvane import BUS_INTERFACE, BUS_NAME, BUS_PATH, stored_settings, wait_stored
from harness.waiting import wait_until

_WAITING = "Waiting for your answer"
_REFUSED = "Your desktop did not allow this."


class StartAtLoginInASandbox(DesktopCase):
    """Quorvane runs where it finds itself in a Flatpak, with its preferences open."""

    def setUp(self) -> None:
        super().setUp()
        address = self.session.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.portal = BackgroundPortal(address)
        self.addCleanup(self.portal.close)
        self.bus = MessageBus(address)
        self.addCleanup(self.bus.close)
        program = [str(self.session.program), "--hidden"]
        self.session.start(
            in_flatpak(self.session, program),
            {"LANG": "en_US.UTF-8", "QUORVANE_BACKEND": self.session.backend},
        )
        wait_until(lambda: self.bus.has_owner(BUS_NAME), "the program to run")
        self.call("preferences")
        self.tree = self.session.accessibility.application(self.bus.pid_of(BUS_NAME))

    def call(self, action: str) -> None:
        self.bus.call(
            BUS_NAME, BUS_PATH, BUS_INTERFACE, "ActivateAction", "(sava{sv})", action, [], {}
        )

    def switch(self) -> Accessible:
        return self.tree.find_role("check box", "Start at login")

    def wait_said(self, text: str) -> None:
        wait_until(lambda: self.tree.find_role("label", text), text)

    def test_it_is_on_once_it_is_granted_and_the_users_folder_stays_as_it_is(self) -> None:
        self.switch().press()
        wish = self.portal.wait_asked(1)
        self.assertTrue(wish["autostart"])
        self.assertEqual(["quorvane", "--hidden"], wish["commandline"])
        self.wait_said(_WAITING)
        self.assertFalse(self.switch().has(State.CHECKED))
        self.portal.grant()
        wait_until(lambda: self.switch().has(State.CHECKED), "the switch to be on")
        wait_stored(self.session, portalAutostart=True)
        self.assertFalse((self.session.directory("config") / "autostart").exists())
        self.switch().press()
        self.assertFalse(self.portal.wait_asked(2)["autostart"])
        self.portal.grant()
        wait_until(lambda: not self.switch().has(State.CHECKED), "the switch to be off")

    def test_it_stays_off_when_it_is_refused_and_says_so(self) -> None:
        self.switch().press()
        self.portal.wait_asked(1)
        self.portal.refuse()
        self.wait_said(_REFUSED)
        self.assertFalse(self.switch().has(State.CHECKED))
        self.assertFalse(stored_settings(self.session).get("portalAutostart", False))

    def test_a_question_that_nobody_answers_keeps_nobody_from_anything(self) -> None:
        self.switch().press()
        self.portal.wait_asked(1)
        self.wait_said(_WAITING)
        self.call("quit")
        wait_until(lambda: not self.bus.has_owner(BUS_NAME), "its end")
