# SPDX-License-Identifier: MIT
"""Neighbours that stop in the middle: disk, bus, clipboard, the X server's hold on us."""

import json
import signal

from harness.case import DesktopCase
from harness.held_disk import HeldDisk
from harness.key_witness import KeyWitness, Stroke
from harness.keys import SHORTCUT, Key
from harness.offer import plain_text
from harness.quorvane import Quorvane, settings_file, stored_settings, wait_stored
from harness.silent_bus import SilentBus
from harness.waiting import wait_until
from Xlib.display import Display
from Xlib.ext.res import LocalClientPIDMask
from Xlib.xobject.drawable import Window


class NeighbourCase(DesktopCase):
    """What has to go on, whoever has stopped."""

    def assert_goes_on(self, quorvane: Quorvane) -> None:
        """The shortcut hides and shows the panel, and timers run: the text is inserted by three."""
        witness = KeyWitness(self.session)
        self.addCleanup(witness.close)
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_active()
        self.keyboard.tap(Key.CONTROL, Key.RETURN)
        quorvane.wait_hidden()
        witness.wait_for(Stroke(Key.V, True))


class Disk(NeighbourCase):
    """A disk that does not answer, from the first start's settings on."""

    def setUp(self) -> None:
        super().setUp()
        self.disk = HeldDisk(self.session)
        self.addCleanup(self.disk.close)
        # There is no file of settings yet.
        self.session.is_new_user = True

    def held_quorvane(self) -> Quorvane:
        """A hidden Quorvane whose settings the disk has not taken yet."""
        quorvane = Quorvane(self.session, **self.disk.environment)
        self.disk.wait_held()
        quorvane.hide()
        return quorvane

    def test_it_goes_on_while_the_disk_does_not_answer(self) -> None:
        quorvane = self.held_quorvane()
        self.assert_goes_on(quorvane)
        self.assertFalse(settings_file(self.session).exists())
        self.disk.let_go()
        wait_until(settings_file(self.session).exists, "the settings")

    def test_it_ends_when_the_disk_has_taken_the_settings(self) -> None:
        quorvane = self.held_quorvane()
        self.summon(quorvane)
        quorvane.action("quit")
        quorvane.wait_hidden()
        self.assertIsNone(quorvane.process.poll())
        self.disk.let_go()
        self.assertEqual(0, quorvane.process.wait(10))
        self.assertIn("favoriteTZs", stored_settings(self.session))

    def test_a_display_that_breaks_loses_no_setting(self) -> None:
        quorvane = self.held_quorvane()
        self.summon(quorvane)
        _kill_client(self.session.display, quorvane.wait_active())
        quorvane.wait_hidden()
        self.assertIsNone(quorvane.process.poll())
        self.disk.let_go()
        self.assertNotEqual(0, quorvane.process.wait(10))
        self.assertIn("favoriteTZs", stored_settings(self.session))


class ClipboardOwner(NeighbourCase):
    """A program that has copied something and does not give it, or too much of it."""

    def test_it_goes_on_while_the_clipboard_s_owner_is_stopped(self) -> None:
        quorvane = self.hidden_quorvane()
        owner = self.clipboard.own(plain_text("never said"))
        owner.send_signal(signal.SIGSTOP)
        self.addCleanup(owner.send_signal, signal.SIGCONT)
        self.assert_goes_on(quorvane)

    def test_it_goes_on_while_an_owner_lists_targets_without_end(self) -> None:
        quorvane = self.hidden_quorvane()
        silent = [offer.target for offer in plain_text("never said")]
        self.clipboard.own(plain_text("never said"), silent=silent, padding=300_000)
        self.assert_goes_on(quorvane)


class Settings(NeighbourCase):
    """What is on the disk when a program ends without a word, and when there are two."""

    def test_a_killed_program_has_stored_what_was_changed(self) -> None:
        quorvane = self.hidden_quorvane()
        self.switch_dock_icon(quorvane)
        wait_stored(self.session, showInDock=True)
        quorvane.process.kill()
        quorvane.process.wait()
        self.hidden_quorvane()
        self.assertTrue(stored_settings(self.session)["showInDock"])

    def test_two_programs_without_a_bus_keep_each_others_settings(self) -> None:
        no_bus = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere"}
        first = Quorvane(self.session, **no_bus)
        first.wait_active()
        second = Quorvane(self.session, **no_bus)
        second.wait_active()
        self.assertIsNone(first.process.poll())
        file = settings_file(self.session)
        wait_until(file.exists, "the settings")
        file.write_text(json.dumps(stored_settings(self.session) | {"of another version": [1]}))
        for quorvane in (first, second):
            quorvane.process.terminate()
            self.assertEqual(0, quorvane.process.wait(10))
        self.assertEqual([1], stored_settings(self.session)["of another version"])

    def switch_dock_icon(self, quorvane: Quorvane) -> None:
        quorvane.action("preferences")
        boxes = [box for box in quorvane.tree().showing() if box.role == "check box"]
        next(box for box in boxes if "ock" in box.name or "taskbar" in box.name).press()


class Bus(NeighbourCase):
    """A session bus that hangs, and one that is replaced."""

    def silent_bus(self) -> SilentBus:
        bus = SilentBus(self.session)
        self.addCleanup(bus.close)
        return bus

    def test_a_start_on_a_bus_that_does_not_answer_runs_without_it(self) -> None:
        bus = self.silent_bus()
        quorvane = Quorvane(self.session, **bus.environment)
        quorvane.wait_active()
        self.keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        self.assert_goes_on(quorvane)
        self.assertIn(
            "quorvane: the session bus does not answer; starting without it\n",
            self.session.log("quorvane"),
        )
        quorvane.process.terminate()
        self.assertEqual(0, quorvane.process.wait(10))

    def test_a_start_that_waits_for_the_bus_can_be_ended(self) -> None:
        for ending in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            bus = SilentBus(self.session)
            quorvane = Quorvane(self.session, **bus.environment)
            bus.wait_for_client()
            quorvane.process.send_signal(ending)
            self.assertEqual(-ending, quorvane.process.wait(10))
            bus.close()

    def test_it_goes_on_while_the_bus_does_not_answer(self) -> None:
        quorvane = self.hidden_quorvane()
        self.session.bus.process.send_signal(signal.SIGSTOP)
        self.addCleanup(self.session.bus.process.send_signal, signal.SIGCONT)
        self.assert_goes_on(quorvane)
        quorvane.process.terminate()
        self.assertEqual(0, quorvane.process.wait(10))

    def test_it_is_known_to_a_bus_that_starts_anew(self) -> None:
        quorvane = self.hidden_quorvane()
        for _ in range(2):
            self.session.restart_bus()
            quorvane.activate()
            quorvane.wait_active()
            self.assertEqual(0, quorvane.launch().wait(10))
            quorvane.hide()

    def test_it_is_known_to_a_bus_that_answers_late(self) -> None:
        self.session.bus.process.send_signal(signal.SIGSTOP)
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.session.bus.process.send_signal(signal.SIGCONT)
        quorvane.hide()


class LostDisplay(NeighbourCase):
    """Connections to the X server that break."""

    def test_a_connection_that_another_client_kills_gives_the_keys_back(self) -> None:
        quorvane = self.hidden_quorvane()
        self.assert_ends_and_leaves_the_keys(quorvane, self.window_beside_qts(quorvane))
        lines = self.session.lines("quorvane")
        self.assertEqual(["quorvane: the connection to the display is lost"], lines)

    def test_a_window_that_another_client_kills_gives_the_keys_back(self) -> None:
        quorvane = Quorvane(self.session)
        self.assert_ends_and_leaves_the_keys(quorvane, quorvane.wait_active())

    def window_beside_qts(self, quorvane: Quorvane) -> int:
        """A window that the program made on a connection of its own."""
        display = Display(self.session.display)
        windows = display.screen().root.query_tree().children
        names = {window.get_wm_name(): window for window in windows}
        qts, pid = _client(display, names["Qt Selection Owner for quorvane"])
        clients = {window.id: _client(display, window) for window in windows}
        display.close()
        self.assertEqual(quorvane.process.pid, pid)
        return next(id for id, client in clients.items() if client[0] != qts and client[1] == pid)

    def assert_ends_and_leaves_the_keys(self, quorvane: Quorvane, window: int) -> None:
        _kill_client(self.session.display, window)
        self.assertEqual(1, quorvane.process.wait(10))
        witness = KeyWitness(self.session)
        self.addCleanup(witness.close)
        self.keyboard.tap(*SHORTCUT)
        witness.wait_for(Stroke(Key.D, True))


def _kill_client(display: str, window: int) -> None:
    """What a user does with xkill: the server ends the connection that made the window."""
    connection = Display(display)
    connection.create_resource_object("window", window).kill_client()
    connection.sync()
    connection.close()


def _client(display: Display, window: Window) -> tuple[int, int]:
    """What the server calls the client that made a window, and its process."""
    ids = display.res_query_client_ids([(window.id, LocalClientPIDMask)]).ids[0]
    return ids.spec.client, ids.value[0]
