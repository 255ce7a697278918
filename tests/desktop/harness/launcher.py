# SPDX-License-Identifier: MIT
"""A launcher: a window with a button that opens what a desktop file describes, by GTK's own means.

Run as a program: the first argument is the file, the second, if there is one, the action.
"""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gio, Gtk  # noqa: E402


def _launch(file: str, *action: str) -> None:
    entry = Gio.DesktopAppInfo.new_from_filename(file)
    context = Gdk.Display.get_default().get_app_launch_context()
    if action:
        entry.launch_action(action[0], context)
    else:
        entry.launch([], context)


def _run(*arguments: str) -> None:
    window = Gtk.Window(title="Launcher")
    window.connect("destroy", Gtk.main_quit)
    button = Gtk.Button(label="Launch")
    button.connect("clicked", lambda _button: _launch(*arguments))
    window.add(button)
    window.show_all()
    button.grab_focus()
    Gtk.main()


if __name__ == "__main__":
    _run(*sys.argv[1:])
