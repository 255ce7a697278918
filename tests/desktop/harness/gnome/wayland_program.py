# SPDX-License-Identifier: MIT
"""A window of GTK 4 on Wayland with a text field.

Run as a program: the arguments are the title, and the file into which the text goes. F5 copies.
"""

import sys
from pathlib import Path

import gi

gi.require_version("Gdk", "4.0")
gi.require_version("Gtk", "4.0")
from gi.repository import Gdk, Gio, GLib, Gtk  # noqa: E402

from .four_kinds import FOUR_KINDS  # noqa: E402


def _copy(clipboard: Gdk.Clipboard) -> None:
    providers = [
        Gdk.ContentProvider.new_for_bytes(offer.target, GLib.Bytes.new(offer.data))
        for offer in FOUR_KINDS
    ]
    clipboard.set_content(Gdk.ContentProvider.new_union(providers))


def _show(application: Gtk.Application, title: str, file: Path) -> None:
    window = Gtk.ApplicationWindow(application=application, title=title)
    window.set_default_size(500, 300)
    field = Gtk.TextView()
    window.set_child(field)

    def write(buffer: Gtk.TextBuffer) -> None:
        file.write_text(buffer.get_text(*buffer.get_bounds(), False))

    def handle_key(_controller: object, key: int, *_rest: object) -> bool:
        if key == Gdk.KEY_F5:
            _copy(window.get_clipboard())
        return key == Gdk.KEY_F5

    field.get_buffer().connect("changed", write)
    keys = Gtk.EventControllerKey()
    keys.set_propagation_phase(Gtk.PropagationPhase.CAPTURE)
    keys.connect("key-pressed", handle_key)
    field.add_controller(keys)
    window.present()


def _run(title: str, file: Path) -> None:
    application = Gtk.Application(flags=Gio.ApplicationFlags.NON_UNIQUE)
    application.connect("activate", lambda activated: _show(activated, title, file))
    application.run(None)


if __name__ == "__main__":
    _run(sys.argv[1], Path(sys.argv[2]))
