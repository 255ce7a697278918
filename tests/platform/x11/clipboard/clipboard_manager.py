# SPDX-License-Identifier: MIT
"""A clipboard manager: keeps what a program hands over (freedesktop.org, "ClipboardManager").

It reports "ready", then, once it has taken something over, the targets that it was asked to keep
and what it read. With "answers" false it hangs.
"""

import struct

from selection_client import SelectionClient, order, report
from selection_reader import Reader
from Xlib import X, Xatom
from Xlib.protocol.event import SelectionNotify


def main() -> None:
    """Takes over one clipboard."""
    wanted = order()
    manager = SelectionClient()
    name = manager.atom("CLIPBOARD_MANAGER")
    manager.window.set_selection_owner(name, manager.server_time())
    manager.display.sync()
    report("ready")
    while request := manager.next_event(60):
        if request.type == X.SelectionRequest and wanted["answers"]:
            break
    asked = request.requestor.get_full_property(request.property, Xatom.ATOM)
    names = [manager.display.get_atom_name(atom) for atom in asked.value]
    kept = Reader("CLIPBOARD").contents()
    manager.window.set_selection_owner(manager.atom("CLIPBOARD"), manager.server_time())
    request.requestor.send_event(
        SelectionNotify(
            time=request.time,
            requestor=request.requestor,
            selection=request.selection,
            target=request.target,
            property=request.property,
        )
    )
    manager.display.sync()
    report({"target": manager.display.get_atom_name(request.target), "names": names, "kept": kept})
    manager.next_event(60)


if __name__ == "__main__":
    main()
