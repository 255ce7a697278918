# SPDX-License-Identifier: MIT
"""An X client of the same user that writes whatever it likes to the windows of another program."""

from collections.abc import Iterator

from Xlib import X
from Xlib.display import Display
from Xlib.error import CatchError
from Xlib.ext.res import LocalClientPIDMask
from Xlib.protocol import event
from Xlib.protocol.rq import Event
from Xlib.xobject.drawable import Window

_MESSAGES = (
    ("WM_PROTOCOLS", "WM_TAKE_FOCUS"),
    ("WM_PROTOCOLS", "_NET_WM_PING"),
    ("WM_PROTOCOLS", "_NET_WM_SYNC_REQUEST"),
    ("_NET_ACTIVE_WINDOW", "CLIPBOARD"),
    ("_NET_WM_STATE", "_NET_WM_STATE_HIDDEN"),
    ("WM_CHANGE_STATE", "CLIPBOARD"),
    ("MANAGER", "_NET_SYSTEM_TRAY_S0"),
    ("MANAGER", "_XSETTINGS_S0"),
    ("_XEMBED", "CLIPBOARD"),
    ("_NET_SYSTEM_TRAY_OPCODE", "CLIPBOARD"),
    ("XdndEnter", "text/plain"),
    ("XdndPosition", "XdndActionCopy"),
    ("XdndDrop", "CLIPBOARD"),
    ("XdndStatus", "CLIPBOARD"),
    ("XdndFinished", "CLIPBOARD"),
    ("nobody knows this", "CLIPBOARD"),
)

_SELECTIONS = ("CLIPBOARD", "PRIMARY", "CLIPBOARD_MANAGER", "_NET_SYSTEM_TRAY_S0", "no selection")
_TARGETS = ("TARGETS", "MULTIPLE", "UTF8_STRING", "TIMESTAMP", "SAVE_TARGETS", "INCR", "DELETE")


class Forger:
    """Forges events, and floods windows with properties."""

    def __init__(self, display: str, pid: int) -> None:
        self._display = Display(display)
        self._root = self._display.screen().root
        self.victims = [window for window in self._root.query_tree().children if self._is_of(window, pid)]

    def close(self) -> None:
        """Ends the connection."""
        self._display.close()

    def forge_events(self, key: int) -> None:
        """One of each kind to every window of the program, and the key to the root as well."""
        for window in self.victims:
            for forged in self._forgeries(window):
                window.send_event(forged, onerror=CatchError())
            self._forge_keys(window, key)
        self._forge_keys(self._root, key)
        self._display.sync()

    def flood_properties(self, size: int, times: int) -> None:
        """Writes so many bytes so many times, under names that the program reads and others."""
        names = ("_QT_SELECTION", "WM_NAME", "_XSETTINGS_SETTINGS", "CLIPBOARD", "flood")
        for time in range(times):
            for window in (*self.victims, self._root):
                atom = self._atom(names[time % len(names)])
                window.change_property(
                    atom, self._atom("UTF8_STRING"), 8, bytes(size), onerror=CatchError()
                )
            self._display.sync()

    def flood_root(self, times: int) -> None:
        """Says over and over that other windows are there, and in front."""
        kinds = {"_NET_ACTIVE_WINDOW": 1, "_NET_CLIENT_LIST": 60_000, "_NET_CURRENT_DESKTOP": 1}
        for time in range(times):
            for name, length in kinds.items():
                atom, kind = self._atom(name), self._atom("WINDOW")
                self._root.change_property(atom, kind, 32, [time + 0x600000] * length)
            self._display.sync()

    def _forgeries(self, window: Window) -> Iterator[Event]:
        yield from self._selection_events(window)
        for name, detail in _MESSAGES:
            yield event.ClientMessage(
                window=window,
                client_type=self._atom(name),
                data=(32, [self._atom(detail), 0, 0xFFFFFFFF, 0x80000000, window.id]),
            )
        yield event.PropertyNotify(
            window=window, atom=self._atom("CLIPBOARD"), time=0, state=X.PropertyNewValue
        )
        yield event.DestroyNotify(event=window, window=window)
        yield event.ConfigureNotify(
            event=window, window=window, above_sibling=X.NONE, x=-32768, y=32767, width=65535,
            height=0, border_width=65535, override=1,
        )
        yield event.MappingNotify(request=X.MappingKeyboard, first_keycode=8, count=255)

    def _selection_events(self, window: Window) -> Iterator[Event]:
        for selection in map(self._atom, _SELECTIONS):
            yield event.SelectionClear(window=window, atom=selection, time=0)
            for target in map(self._atom, _TARGETS):
                for store in (X.NONE, target, 0x1FFFFFFF):
                    yield event.SelectionNotify(
                        requestor=window, selection=selection, target=target, property=store, time=0
                    )
                    yield event.SelectionRequest(
                        owner=window, requestor=self._root, selection=selection, target=target,
                        property=store, time=0,
                    )

    def _forge_keys(self, window: Window, key: int) -> None:
        every_modifier = X.ControlMask | X.ShiftMask | X.Mod4Mask
        for kind in (event.KeyPress, event.KeyRelease):
            forged = kind(
                detail=key, time=X.CurrentTime, root=self._root, window=window, child=X.NONE,
                root_x=0, root_y=0, event_x=0, event_y=0, state=every_modifier, same_screen=1,
            )
            window.send_event(forged, event_mask=X.KeyPressMask, propagate=True)

    def _atom(self, name: str) -> int:
        return self._display.get_atom(name)

    def _is_of(self, window: Window, pid: int) -> bool:
        clients = self._display.res_query_client_ids([(window.id, LocalClientPIDMask)]).ids
        return any(client.value and client.value[0] == pid for client in clients)
