# SPDX-License-Identifier: MIT
"""The shortcut in GNOME's own list: added, changed and removed in the preferences."""

from harness.gnome.case import PREFERENCES, GnomeCase
from harness.gnome.wayland_window import WaylandWindow
from harness.keys import SHORTCUT, Key
from harness.paths import PROGRAM
from harness.quorvane import Quorvane, wait_stored
from harness.waiting import wait_until

_MEDIA_KEYS = "org.gnome.settings-daemon.plugins.media-keys"
_ENTRY = (
    f"{_MEDIA_KEYS}.custom-keybinding"
    ":/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/quorvane/"
)


class Shortcut(GnomeCase):
    """Under a desktop that lets programs take hold of no keys."""

    def preferences(self, quorvane: Quorvane) -> None:
        """Opens the preferences."""
        quorvane.action("preferences")
        self.shell.wait_focused(PREFERENCES)

    def wait_entry(self, binding: str) -> None:
        """Waits until the desktop's entry is for these keys."""
        wait_until(
            lambda: self.session.get(_ENTRY, "binding") == f"'{binding}'",
            f"an entry for {binding or 'nothing'}",
            interval=0.05,
        )

    def test_it_is_added_changed_and_removed(self) -> None:
        window = WaylandWindow(self.session)
        quorvane = self.shown_quorvane()
        self.add_shortcut(quorvane)
        self.wait_entry("<Control><Shift><Super>d")
        self.preferences(quorvane)
        tree = quorvane.tree()
        tree.find("Record new shortcut").press()
        tree.find_described("panel", "Recording: Waiting for a key")
        self.hands.tap(Key.CONTROL, Key.SHIFT, Key.SUPER, Key.K)
        self.wait_entry("<Control><Shift><Super>k")
        self.hands.tap(Key.ESCAPE)
        window.wait_focused()
        self.hands.tap(Key.CONTROL, Key.SHIFT, Key.SUPER, Key.K)
        self.shell.wait_focused("Quorvane")
        self.preferences(quorvane)
        quorvane.tree().find_role("push button", "Remove").press()
        self.wait_entry("")
        self.assertEqual("@as []", self.session.get(_MEDIA_KEYS, "custom-keybindings"))
        self.assertEqual("''", self.session.get(_ENTRY, "command"))

    def test_a_change_in_the_desktops_settings_reaches_quorvane_and_lasts(self) -> None:
        window = WaylandWindow(self.session)
        quorvane = self.shown_quorvane()
        self.add_shortcut(quorvane)
        self.session.set(_ENTRY, "binding", "'<Control><Alt>j'")
        wait_stored(self.session, hotKeyCode=38, hotKeyModifiers=0x1800)
        self.preferences(quorvane)
        quorvane.tree().find_described("panel", "Control, Alt, J")
        self.assertEqual(0, quorvane.quit())
        window.wait_focused()
        self.session.set(_ENTRY, "binding", "'<Control><Alt>k'")
        quorvane = self.shown_quorvane()
        wait_stored(self.session, hotKeyCode=40, hotKeyModifiers=0x1800)
        self.hands.tap(Key.ESCAPE)
        window.wait_focused()
        self.hands.tap(Key.CONTROL, Key.ALT, Key.K)
        self.shell.wait_focused("Quorvane")

    def test_what_the_desktop_has_bound_already_is_named(self) -> None:
        self.session.set(
            "org.gnome.desktop.wm.keybindings", "show-desktop", "['<Primary><Shift><Super>d']"
        )
        quorvane = self.shown_quorvane()
        self.preferences(quorvane)
        quorvane.tree().find(
            "In the shortcuts of GNOME, this one belongs to “Show desktop”."
        )

    def test_it_starts_the_program(self) -> None:
        window = WaylandWindow(self.session)
        quorvane = self.shown_quorvane()
        self.add_shortcut(quorvane)
        self.assertEqual(0, quorvane.quit())
        window.wait_focused()
        self.session.offer_service("org.quorvane.Quorvane", str(PROGRAM))
        self.hands.tap(*SHORTCUT)
        self.shell.wait_focused("Quorvane")
