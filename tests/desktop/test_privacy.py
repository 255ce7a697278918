# SPDX-License-Identifier: MIT
"""What the user copies and does stays on the machine, and in nothing that is kept."""

import os
import re
from pathlib import Path

from harness.case import DesktopCase
from harness.confined import ConfinedQuorvane, without_network
from harness.contacts import Contacts
from harness.offer import plain_text
from harness.preferences import DOCK, switch
from harness.process_memory import occurrences
from harness.quorvane import Quorvane, wait_stored
from harness.waiting import wait_until

# What libxcb sends goes through a buffer of 16 KiB, what it receives through one of 4; pieces of that
# stay on the stack.
_KEPT_BY_XCB = 24 * 1024
_SETTINGS = ("defaults.json", "windows.json")


class Privacy(DesktopCase):
    """The whole journey, watched."""

    def journey(self, quorvane: Quorvane, secret: str) -> None:
        """Insert over a secret of the user's, copy, change the preferences."""
        editor = self.editor()
        self.clipboard.own(plain_text(secret))
        self.insert(quorvane, editor)
        self.clipboard.wait_for(plain_text(secret))
        quorvane.action("copy")
        self.clipboard.wait_data("UTF8_STRING", editor.text().encode())
        switch(quorvane, DOCK)
        wait_stored(self.session, showInDock=True)

    def test_nothing_but_settings_is_written_and_for_the_user_alone(self) -> None:
        secret = _secret()
        # The folder is to be the program's own.
        self.session.is_new_user = True
        quorvane = self.hidden_quorvane()
        before = self.files()
        self.journey(quorvane, secret)
        self.assertEqual(0, quorvane.quit())
        folder = self.session.directory("config") / "quorvane"
        ours = {file for file in self.files() if "quorvane" in str(file).lower()}
        self.assertLessEqual(ours, {folder, *(folder / name for name in _SETTINGS)})
        for file in ours - {folder}:
            self.assertEqual(0o600, file.stat().st_mode & 0o777, file)
        self.assertEqual(0o700, folder.stat().st_mode & 0o777)
        for file in self.files() - before:
            if file.is_file():
                self.assertNotIn(secret.encode(), file.read_bytes(), file)

    def test_it_speaks_to_nobody_but_its_display_and_its_buses(self) -> None:
        contacts = Contacts(self.session)
        quorvane = Quorvane(self.session, **contacts.environment)
        quorvane.hide()
        self.journey(quorvane, _secret())
        self.assertEqual(0, quorvane.quit())
        number = self.session.display.removeprefix(":")
        allowed = re.compile(
            rf"@?/tmp/\.X11-unix/X{number}|{re.escape(str(self.session.root))}/.*(bus|socket).*"
        )
        strangers = {contact for contact in contacts.all() if not allowed.fullmatch(contact)}
        self.assertEqual(set(), strangers)

    def test_it_works_without_any_network(self) -> None:
        quorvane = ConfinedQuorvane(self.session, without_network())
        quorvane.hide()
        interfaces = Path(f"/proc/{quorvane.process.pid}/net/dev").read_text()
        self.assertEqual(1, interfaces.count(":"), "nothing but the loopback, which is down")
        self.journey(quorvane, _secret())
        self.assertEqual(0, quorvane.quit())

    def test_the_most_talkative_log_has_nothing_of_what_was_copied(self) -> None:
        secret = _secret()
        quorvane = Quorvane(self.session, QT_LOGGING_RULES="*=true")
        quorvane.hide()
        self.journey(quorvane, secret)
        self.assertEqual(0, quorvane.quit())
        log = self.session.log("quorvane")
        self.assertGreater(len(log), 10_000, "a talkative log")
        self.assertNotIn(secret, log)
        self.assertNotIn(secret[:12], log)

    def test_what_was_copied_is_forgotten_once_it_is_given_away(self) -> None:
        line = _secret()
        copied = plain_text("".join(f"{line} {number}\n" for number in range(2500)))
        quorvane = self.hidden_quorvane()
        editor = self.editor()
        self.clipboard.own(copied)
        self.insert(quorvane, editor)
        self.clipboard.wait_for(copied)
        self.assertGreater(_remembered(quorvane, line), _KEPT_BY_XCB, "it is lent")
        self.clipboard.own(plain_text("something else"))
        wait_until(
            lambda: _remembered(quorvane, line) <= _KEPT_BY_XCB, "nothing to be left of it in ours"
        )

    def files(self) -> set[Path]:
        """All that lies in the session's folders, but for the tests' own logs."""
        root = self.session.root
        return {path for path in root.rglob("*") if root / "logs" not in path.parents}


def _secret() -> str:
    """What nobody else writes anywhere."""
    return f"hunter-{os.urandom(12).hex()}"


def _remembered(quorvane: Quorvane, text: str) -> int:
    """How many bytes of the program's memory are that."""
    pid = quorvane.process.pid
    coded = (text.encode(name) for name in ("utf-8", "utf-16-le"))
    return sum(len(secret) * occurrences(pid, secret) for secret in coded)
