# SPDX-License-Identifier: MIT
"""Servers that end or are replaced, disks that fail, clocks that are set, surroundings that lack."""

import json
import shutil
import signal
from datetime import timedelta
from pathlib import Path

from harness.case import DesktopCase
from harness.confined import ConfinedQuorvane, full_disk, read_only, with_mounts
from harness.keys import INSERT, Key
from harness.moved_clock import MovedClock
from harness.offer import plain_text
from harness.preferences import DOCK, switch
from harness.quorvane import Quorvane, settings_file, stored_settings, wait_stored
from harness.waiting import wait_until

_USERS = {"favoriteTZs": ["Asia/Tokyo"], "of another version": [1]}


class FaultCase(DesktopCase):
    """A user who has settings."""

    def setUp(self) -> None:
        super().setUp()
        self.settings = settings_file(self.session)
        self.settings.parent.mkdir()
        self.settings.write_text(json.dumps(_USERS))

    def assert_whole(self, file: Path | None = None) -> None:
        """Nothing of the user's is missing in the file of settings."""
        stored = json.loads((file or self.settings).read_text())
        self.assertEqual(_USERS, {key: stored.get(key) for key in _USERS})

    def assert_inserts(self, quorvane: Quorvane) -> None:
        """The whole way from the shortcut to the text, and the clipboard comes back."""
        editor = self.editor()
        had = plain_text("the user's own")
        self.clipboard.own(had)
        self.insert(quorvane, editor)
        self.clipboard.wait_for(had)


class Servers(FaultCase):
    """Those that the program is connected to."""

    def test_an_x_server_that_is_killed_ends_it_with_whole_settings(self) -> None:
        server = self.session.start_server()
        quorvane = Quorvane(self.session, DISPLAY=server.display)
        switch(quorvane, DOCK)
        wait_stored(self.session, showInDock=True)
        server.process.kill()
        self.assertEqual(1, quorvane.process.wait(10))
        self.assert_whole()
        again = self.hidden_quorvane()
        self.assert_inserts(again)

    def test_a_window_manager_that_another_one_replaces_costs_nothing(self) -> None:
        quorvane = self.hidden_quorvane()
        for name in ("xfwm4", "openbox", "xfwm4"):
            self.session.replace_manager(name)
            self.summon(quorvane)
            quorvane.action("toggle")
            quorvane.wait_hidden()
        self.assert_inserts(quorvane)


class Disk(FaultCase):
    """The folder of the settings, from its absence to a disk without room."""

    def test_a_folder_that_is_removed_is_made_again_with_all_settings(self) -> None:
        quorvane = self.hidden_quorvane()
        shutil.rmtree(self.settings.parent)
        switch(quorvane, DOCK)
        wait_stored(self.session, showInDock=True)
        self.assert_whole()
        self.assertEqual(0o600, self.settings.stat().st_mode & 0o777)
        self.assertEqual(0o700, self.settings.parent.stat().st_mode & 0o777)

    def test_a_folder_that_cannot_be_written_is_one_line_and_all_else_works(self) -> None:
        quorvane = ConfinedQuorvane(self.session, read_only(self.settings.parent))
        self.assert_goes_on_without_the_disk(quorvane)
        self.assert_whole()

    def test_a_full_disk_is_one_line_and_the_file_stays_whole(self) -> None:
        folder = self.settings.parent
        folder.with_name(f"{folder.name}.full").mkdir()
        quorvane = ConfinedQuorvane(self.session, full_disk(folder))
        self.assert_goes_on_without_the_disk(quorvane)
        self.assert_whole(Path(f"/proc/{quorvane.process.pid}/root") / self.settings.relative_to("/"))

    def assert_goes_on_without_the_disk(self, quorvane: Quorvane) -> None:
        quorvane.hide()
        switch(quorvane, DOCK)
        wait_until(lambda: "cannot be written" in self.session.logs(), "a line about the disk")
        self.assertEqual(1, self.session.logs().count("cannot be written"))
        self.assert_inserts(quorvane)


class Time(FaultCase):
    """Clocks, zones and words that are not what they were."""

    def test_a_clock_that_is_set_back_and_forth_delays_nothing(self) -> None:
        clock = MovedClock(self.session)
        self.addCleanup(clock.close)
        quorvane = Quorvane(self.session, **clock.environment)
        quorvane.hide()
        editor = self.editor()
        had = plain_text("the user's own")
        for span in (timedelta(days=-400), timedelta(days=800), timedelta(days=-400)):
            self.clipboard.own(had)
            self.summon(quorvane)
            text = editor.text() + quorvane.preview()
            self.keyboard.tap(*INSERT)
            clock.move(span)
            editor.wait_text(text)
            self.clipboard.wait_for(had)

    def test_a_program_that_stands_still_in_an_insertion_ends_it_when_it_goes_on(self) -> None:
        clock = MovedClock(self.session)
        self.addCleanup(clock.close)
        quorvane = Quorvane(self.session, **clock.environment)
        quorvane.hide()
        editor = self.editor()
        had = plain_text("the user's own")
        self.clipboard.own(had)
        self.summon(quorvane)
        text = quorvane.preview()
        self.keyboard.tap(*INSERT)
        quorvane.wait_hidden()
        quorvane.process.send_signal(signal.SIGSTOP)
        clock.move(timedelta(hours=8))
        editor.wait_active()
        typed = "d" * 50
        for _ in typed:
            self.keyboard.tap(Key.D)
        wait_until(lambda: editor.text().replace(text, "", 1) == typed, "what the user types")
        quorvane.process.send_signal(signal.SIGCONT)
        wait_until(lambda: text in editor.text(), "the text")
        self.clipboard.wait_for(had)
        self.assertEqual(typed, editor.text().replace(text, "", 1))
        self.summon(quorvane)
        self.assertNotEqual(text, quorvane.preview(), "the moment of eight hours later")

    def test_without_zone_data_dates_are_utc_and_favourites_stay(self) -> None:
        folder = "/usr/share/zoneinfo"
        quorvane = ConfinedQuorvane(
            self.session, with_mounts(f"mount -t tmpfs quorvane-test {folder}"), TZ="Europe/Berlin"
        )
        quorvane.wait_active()
        self.assertIn("UTC", quorvane.preview())
        switch(quorvane, DOCK)
        wait_stored(self.session, showInDock=True)
        self.assert_whole()

    def test_surroundings_that_lack_or_lie_stop_no_start(self) -> None:
        for lie in (
            {"LANG": "xx_YY.UTF-8"},
            {"LC_ALL": "en_GB.ISO-8859-15"},
            {"LC_ALL": "/dev/zero"},
            {"LANG": "", "LC_ALL": ""},
            {"TZ": "Nowhere/Atlantis"},
            {"TZ": ":/dev/zero"},
            {"TZ": "x" * 100_000},
            {"TZDIR": "/nowhere"},
            {"HOME": "/nowhere"},
        ):
            with self.subTest(**{name: value[:40] for name, value in lie.items()}):
                quorvane = Quorvane(self.session, **lie)
                quorvane.wait_active()
                self.assertTrue(quorvane.preview())
                self.assertEqual(0, quorvane.quit())
                self.assert_whole()


class Ends(FaultCase):
    """An end in the middle of an insertion."""

    def test_sigterm_gives_the_clipboard_back_first(self) -> None:
        self.clipboard.start_manager()
        editor = self.editor()
        had = plain_text("what the user had copied")
        for ending in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            quorvane = self.hidden_quorvane()
            editor.focus()
            self.clipboard.own(had)
            text = self.insert(quorvane, editor).encode()
            self.assertEqual(text, self.clipboard.data("UTF8_STRING"))
            quorvane.process.send_signal(ending)
            self.assertEqual(0, quorvane.process.wait(10))
            self.clipboard.wait_for(had)

    def test_sigterm_before_the_keys_leaves_the_clipboard_alone(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.focus()
        had = plain_text("what the user had copied")
        self.clipboard.own(had)
        self.summon(quorvane)
        self.keyboard.tap(*INSERT)
        quorvane.wait_hidden()
        quorvane.process.terminate()
        self.assertEqual(0, quorvane.process.wait(10))
        self.assertEqual(had, self.clipboard.contents())
        self.assertEqual("", editor.text())
