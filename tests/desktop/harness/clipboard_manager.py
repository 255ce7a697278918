# SPDX-License-Identifier: MIT
"""The desktop's clipboard manager, run as a process of its own.

It keeps what a program hands over before it ends (the freedesktop.org ClipboardManager protocol:
SAVE_TARGETS), and nothing else. It prints a line when it is ready.
"""

import os

from Xlib import X

from .selection_owner import SelectionOwner
from .selection_reader import SelectionReader


def main() -> None:
    """Waits for a program that hands its clipboard over, takes it, and serves it."""
    display = os.environ["DISPLAY"]
    manager = SelectionOwner(display)
    manager.own("CLIPBOARD_MANAGER", [])
    print("owned", flush=True)
    while True:
        event = manager.display.next_event()
        if event.type == X.SelectionRequest and manager.name(event.target) == "SAVE_TARGETS":
            keeper = SelectionOwner(display)
            keeper.own("CLIPBOARD", SelectionReader(display).offers("CLIPBOARD"))
            manager.confirm(event, event.property)
            while keeper.handle(keeper.display.next_event()):
                pass
        elif not manager.handle(event):
            return


if __name__ == "__main__":
    main()
