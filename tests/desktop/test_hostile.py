# SPDX-License-Identifier: MIT
"""Programs of the same user that mean harm: nothing happens but what the user could do."""

from collections.abc import Callable

from gi.repository import Gio, GLib
from harness.case import DesktopCase
from harness.clipboard_thief import ClipboardThief
from harness.forger import Forger
from harness.key_witness import KeyWitness
from harness.keys import SHORTCUT, Key
from harness.memory import Memory
from harness.message_bus import MessageBus
from harness.offer import plain_text
from harness.quorvane import (
    BUS_INTERFACE,
    BUS_NAME,
    BUS_PATH,
    stored_settings,
)
from harness.targets import Editor
from harness.waiting import wait_until

_MEBIBYTE = 1 << 20
_GROWTH = 64 * _MEBIBYTE
"""How much more memory than before a flood may take while it lasts."""

LEFT = 16 * _MEBIBYTE
"""How much of that may be left: what the allocator keeps for the next time."""

MINE = plain_text("the user's own")
LOOT = plain_text("of the thief")


class HostileCase(DesktopCase):
    """A hidden program, and what it may come to."""

    def setUp(self) -> None:
        super().setUp()
        self.quorvane = self.hidden_quorvane()
        self.memory = Memory(self.quorvane.process.pid)

    def assert_bears(self, flood: Callable[[], None]) -> None:
        """The program gets over a flood, in bounded memory."""
        self.summon_and_hide()
        self.memory.forget_peak()
        before = self.memory.now()
        flood()
        self.summon_and_hide()
        growth = self.memory.peak() - before
        self.assertLess(growth, _GROWTH, f"{growth / _MEBIBYTE:.0f} MiB more")
        wait_until(lambda: self.memory.now() - before < LEFT, "the memory of before")

    def summon_and_hide(self) -> None:
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_active()
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_hidden()


class Clipboard(HostileCase):
    """A program that takes the clipboard."""

    def thief(self, times: int, greedy: bool = False) -> ClipboardThief:
        thief = ClipboardThief(self.session.display, LOOT, times, greedy)
        self.addCleanup(thief.close)
        return thief

    def active_editor(self) -> Editor:
        editor = self.editor()
        editor.wait_active()
        return editor

    def wait_for_loot(self) -> None:
        self.clipboard.wait_for(LOOT)

    def test_a_clipboard_that_is_taken_before_the_paste_stays_taken(self) -> None:
        editor = self.active_editor()
        self.clipboard.own(MINE)
        thief = self.thief(times=1)
        self.summon(self.quorvane)
        text = self.quorvane.preview()
        self.keyboard.tap(Key.CONTROL, Key.RETURN)
        loot = LOOT[0].data.decode()
        wait_until(lambda: editor.text() in (text, loot), "a text, ours or the thief's")
        # Its restore comes after that of the first was due.
        self.insert(self.quorvane, editor)
        self.wait_for_loot()
        self.assertEqual(1, thief.thefts)

    def test_it_goes_on_while_the_clipboard_is_claimed_without_end(self) -> None:
        thief = self.thief(times=20_000, greedy=True)

        def quarrel() -> None:
            self.quorvane.action("copy")
            self.quorvane.action("insert")
            self.quorvane.action("copy")
            wait_until(lambda: thief.thefts > 3000, "a quarrel about the clipboard")

        self.assert_bears(quarrel)


class Forgeries(HostileCase):
    """Events that no server has sent, and properties that nobody asked for."""

    def setUp(self) -> None:
        super().setUp()
        self.forger = Forger(self.session.display, self.quorvane.process.pid)
        self.addCleanup(self.forger.close)
        self.assertGreater(len(self.forger.victims), 1)

    def test_forged_events_type_nothing_and_change_nothing(self) -> None:
        self.clipboard.own(MINE)
        witness = KeyWitness(self.session)
        self.addCleanup(witness.close)
        before = stored_settings(self.session)

        def forge() -> None:
            for _ in range(20):
                self.forger.forge_events(Key.D)

        self.assert_bears(forge)
        witness.focus()
        self.assertEqual([], witness.of(Key.V))
        self.assertEqual(MINE, self.clipboard.contents())
        self.assertEqual(before, stored_settings(self.session))

    def test_properties_without_end_cost_bounded_memory(self) -> None:
        self.assert_bears(lambda: self.forger.flood_properties(250_000, 50))

    def test_a_lying_root_window_costs_bounded_memory(self) -> None:
        self.assert_bears(lambda: self.forger.flood_root(300))
        self.session.windows.let_manager_catch_up()


class Bus(HostileCase):
    """Messages that nobody asked for."""

    def setUp(self) -> None:
        super().setUp()
        self.bus = MessageBus(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.bus.close)

    def send(self, interface: str, method: str, body: GLib.Variant | None) -> None:
        """A call whose answer nobody waits for."""
        message = Gio.DBusMessage.new_method_call(BUS_NAME, BUS_PATH, interface, method)
        message.set_flags(Gio.DBusMessageFlags.NO_REPLY_EXPECTED)
        if body is not None:
            message.set_body(body)
        self.bus.connection.send_message(message, Gio.DBusSendMessageFlags.NONE)

    def signal(self, path: str, interface: str, name: str, body: GLib.Variant) -> None:
        """A signal in the name of somebody else, as far as the bus lets one."""
        self.bus.connection.emit_signal(None, path, interface, name, body)

    def wait_for_the_bus(self) -> None:
        """Returns when the program has had all that was sent before."""
        self.bus.connection.flush_sync(None)
        self.bus.call(BUS_NAME, BUS_PATH, "org.freedesktop.DBus.Peer", "Ping")

    def test_odd_arguments_do_nothing(self) -> None:
        before = stored_settings(self.session)
        odd = [
            None,
            GLib.Variant("(s)", ("toggle",)),
            GLib.Variant("(i)", (7,)),
            GLib.Variant("(sas)", ("toggle", ["x"])),
            GLib.Variant("(sava{sv})", ("toggle" * 100_000, [], {})),
            GLib.Variant("(sava{sv})", ("tog\u202egle\n", [], {})),
            GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("v", GLib.Variant("i", 1))),)),
            GLib.Variant("(ay)", (bytes(_MEBIBYTE),)),
        ]
        methods = ("Activate", "ActivateAction", "Open", "Nothing")
        for body in odd:
            for method in methods:
                if method != "Activate" or body is not None:
                    self.send(BUS_INTERFACE, method, body)
            self.send("org.freedesktop.DBus.Properties", "Set", body)
        self.wait_for_the_bus()
        self.assertIsNone(self.quorvane.panel())
        self.assertEqual(before, stored_settings(self.session))
        self.summon_and_hide()

    def test_a_flood_of_calls_costs_bounded_memory(self) -> None:
        body = GLib.Variant("(sava{sv})", ("x" * 50_000, [], {}))

        def flood() -> None:
            for _ in range(2000):
                self.send(BUS_INTERFACE, "ActivateAction", body)
            self.wait_for_the_bus()

        self.assert_bears(flood)

    def test_forged_signals_cost_nothing(self) -> None:
        wrong = GLib.Variant("(v)", (GLib.Variant("ay", bytes(50_000)),))
        scheme = GLib.Variant(
            "(ssv)", ("org.freedesktop.appearance", "color-scheme", GLib.Variant("s", "x" * 50_000))
        )
        portal = "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings"
        notifications = "/org/freedesktop/Notifications", "org.freedesktop.Notifications"
        watcher = "/StatusNotifierWatcher", "org.kde.StatusNotifierWatcher"

        def flood() -> None:
            for _ in range(500):
                for body in (wrong, scheme):
                    self.signal(*portal, "SettingChanged", body)
                    self.signal(*notifications, "ActionInvoked", body)
                    self.signal(*watcher, "StatusNotifierHostRegistered", body)
            self.wait_for_the_bus()

        self.assert_bears(flood)

