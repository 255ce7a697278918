# SPDX-License-Identifier: MIT
"""A program with a window that fills the screen, and a dialog with one field over it.

Run as a program: what stands in the field goes into the file that the argument names.
"""

import sys
from pathlib import Path

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402


class _FullScreen(Gtk.Window):
    """The window, which opens the dialog once it has the keyboard.

    Compositors take a dialog for one of a window that they show already, and of no other.
    """

    def __init__(self, file: Path) -> None:
        super().__init__(title="full screen")
        self._file = file
        self.connect("destroy", Gtk.main_quit)
        self._became_active = self.connect("notify::is-active", self._open_dialog)
        self.fullscreen()
        self.show_all()

    def _open_dialog(self, *_: object) -> None:
        self.disconnect(self._became_active)
        dialog = Gtk.Dialog(title="dialog", transient_for=self)
        entry = Gtk.Entry()
        entry.connect("changed", lambda changed: self._file.write_text(changed.get_text()))
        dialog.get_content_area().add(entry)
        dialog.show_all()


if __name__ == "__main__":
    window = _FullScreen(Path(sys.argv[1]))
    Gtk.main()
