# SPDX-License-Identifier: MIT
"""A program whose window is a text that can be dragged away.

Run as a program: the arguments are the text, and the file that is told what becomes of each drag.
"""

import sys
from pathlib import Path

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402


def _run(text: str, file: Path) -> None:
    def note(line: str) -> None:
        with file.open("a") as lines:
            lines.write(f"{line}\n")

    def give(_source: object, _drag: object, data: Gtk.SelectionData, *_rest: object) -> None:
        note("asked")
        data.set_text(text, -1)

    def begin(_source: object, drag: Gdk.DragContext) -> None:
        note("begun")
        drag.connect("action-changed", tell_action)

    def tell_action(_drag: object, action: Gdk.DragAction) -> None:
        if action:
            note("accepted")

    def fail(*_rest: object) -> bool:
        note("failed")
        return True  # no picture flies back

    window = Gtk.Window(title="drag")
    window.connect("destroy", Gtk.main_quit)
    source = Gtk.EventBox()
    source.add(Gtk.Label(label=text))
    source.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, None, Gdk.DragAction.COPY)
    source.drag_source_add_text_targets()
    source.connect("drag-begin", begin)
    source.connect("drag-data-get", give)
    source.connect("drag-failed", fail)
    source.connect("drag-end", lambda *_rest: note("ended"))
    window.add(source)
    window.show_all()
    Gtk.main()


if __name__ == "__main__":
    _run(sys.argv[1], Path(sys.argv[2]))
