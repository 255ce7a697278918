# SPDX-License-Identifier: MIT
"""The shortcut is a place on the keyboard: it stays where it is under every layout."""

from harness.case import DesktopCase
from harness.quorvane import Quorvane

# Dvorak and French move D, V or both; the Russian layout has no Latin letters at all.
# Each is a layout with its variant.
_LAYOUTS = (("us", "dvorak"), ("fr", ""), ("ru", ""), ("us,ru", ""), ("us", ""))


class Keymap(DesktopCase):
    """Layouts that change while the program runs."""

    def test_shortcut_and_paste_work_under_every_layout_in_a_gtk_editor(self) -> None:
        self.insert_under_every_layout("mousepad")

    def test_shortcut_and_paste_work_under_every_layout_in_a_qt_editor(self) -> None:
        self.insert_under_every_layout("featherpad")

    def insert_under_every_layout(self, name: str) -> None:
        editor = self.editor(name)
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        for layout, variant in _LAYOUTS:
            with self.subTest(layout, variant=variant):
                self.session.run(["setxkbmap", "-layout", layout, "-variant", variant])
                self.let_notice(quorvane)
                editor.wait_active()
                self.insert(quorvane, editor)
                self.clipboard.wait_empty()

    def let_notice(self, quorvane: Quorvane) -> None:
        """Waits until the program has received the change of the layout."""
        for _ in range(2):
            quorvane.action("toggle")
            quorvane.wait_active()
            quorvane.action("toggle")
            quorvane.wait_hidden()
