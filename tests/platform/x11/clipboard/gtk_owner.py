# SPDX-License-Identifier: MIT
"""A GTK program that owns the clipboard: with a picture, or with files as file managers copy them.

It reports "owned" and serves until it is stopped.
"""

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkPixbuf, GLib, Gtk  # noqa: E402
from selection_client import order, report  # noqa: E402

FILES = ["file:///tmp/one.txt", "file:///tmp/zw%C3%B6lf%20und.png"]


def own_picture() -> None:
    """A picture, which GTK offers in each format that it can write."""
    width, height = 64, 48
    pixels = bytes(value % 251 for value in range(width * height * 3))
    picture = GdkPixbuf.Pixbuf.new_from_bytes(
        GLib.Bytes.new(pixels), GdkPixbuf.Colorspace.RGB, False, 8, width, height, width * 3
    )
    Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD).set_image(picture)


def own_files() -> None:
    """Files, by their addresses and in the file managers' own form."""
    window = Gtk.Window(type=Gtk.WindowType.POPUP)
    window.realize()
    clipboard = Gdk.SELECTION_CLIPBOARD
    for number, target in enumerate(("x-special/gnome-copied-files", "text/uri-list")):
        Gtk.selection_add_target(window, clipboard, Gdk.Atom.intern(target, False), number)

    def give(_widget, data, number, _time) -> None:
        if number == 0:
            data.set(data.get_target(), 8, ("copy\n" + "\n".join(FILES)).encode())
        else:
            data.set_uris(FILES)

    window.connect("selection-get", give)
    Gtk.selection_owner_set(window, clipboard, Gtk.get_current_event_time())


if __name__ == "__main__":
    {"picture": own_picture, "files": own_files}[order()["kind"]]()
    Gdk.Display.get_default().sync()
    report("owned")
    Gtk.main()
