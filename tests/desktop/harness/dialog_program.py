# SPDX-License-Identifier: MIT
"""A program with a window that fills the screen, and a dialog with one field over it.

Run as a program: what stands in the field goes into the file that the argument names.
"""

import sys
from pathlib import Path

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402


def _run(file: Path) -> None:
    window = Gtk.Window(title="full screen")
    window.connect("destroy", Gtk.main_quit)
    window.fullscreen()
    window.show_all()
    dialog = Gtk.Dialog(title="dialog", transient_for=window)
    entry = Gtk.Entry()
    entry.connect("changed", lambda changed: file.write_text(changed.get_text()))
    dialog.get_content_area().add(entry)
    dialog.show_all()
    Gtk.main()


if __name__ == "__main__":
    _run(Path(sys.argv[1]))
