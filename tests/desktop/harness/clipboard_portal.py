# SPDX-License-Identifier: MIT
"""The portal that lets programs type, and shares the clipboard with them."""

import os
import queue
import threading
from typing import Any

from gi.repository import Gio, GLib

from .request_portal import PATH
from .selection_reader import SelectionReader
from .shared_selection import SharedSelection, contents_of
from .typing_portal import TypingPortal
from .waiting import Deadline

_INTERFACE = "org.freedesktop.portal.Clipboard"

_INTROSPECTION = f"""
  <interface name="{_INTERFACE}">
    <property name="version" type="u" access="read"/>
    <method name="RequestClipboard">
      <arg type="o" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
    </method>
    <method name="SetSelection">
      <arg type="o" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
    </method>
    <method name="SelectionWrite">
      <arg type="o" direction="in"/>
      <arg type="u" direction="in"/>
      <arg type="h" direction="out"/>
    </method>
    <method name="SelectionWriteDone">
      <arg type="o" direction="in"/>
      <arg type="u" direction="in"/>
      <arg type="b" direction="in"/>
    </method>
    <method name="SelectionRead">
      <arg type="o" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="h" direction="out"/>
    </method>
  </interface>
</node>
"""


class ClipboardPortal(TypingPortal):
    """What a program sets here is the clipboard of the display, and the other way round."""

    introspection = TypingPortal.introspection.replace("</node>", _INTROSPECTION)

    def __init__(self, session_bus_address: str, display: str, version: int = 1) -> None:
        self._display = display
        self._reader = SelectionReader(display)
        self._selection: SharedSelection | None = None
        self._fetched: dict[int, queue.Queue[int | None]] = {}
        self._past: list[SharedSelection] = []
        self._is_requested = False
        super().__init__(session_bus_address, display, version)

    def close(self) -> None:
        self._drop()
        for fetched in self._fetched.values():
            fetched.put(None)
        for selection in self._past:
            selection.wait_closed()
        self._past.clear()
        super().close()

    def withdraw(self) -> None:
        self._drop()
        super().withdraw()

    def _consent(self) -> None:
        super()._consent()
        if self._is_requested:
            self._tell(contents_of(self._display))

    def _further_consent(self) -> dict[str, GLib.Variant]:
        return {"clipboard_enabled": GLib.Variant("b", self._is_requested)}

    def _read(self, *call: Any) -> GLib.Variant | None:
        return GLib.Variant("u", 1) if call[3] == _INTERFACE else super()._read(*call)

    def _answer(self, *call: Any) -> None:
        if call[3] != _INTERFACE:
            super()._answer(*call)
            return
        method, arguments, invocation = call[4], call[5].unpack()[1:], call[6]
        if method == "RequestClipboard":
            self._is_requested = True
        elif not self._is_open:
            invocation.return_dbus_error("org.freedesktop.DBus.Error.AccessDenied", "no session")
            return
        if method == "SetSelection":
            self._drop()
            self._selection = SharedSelection(
                self._display, arguments[0]["mime_types"], self._fetch, self._tell
            )
        if method == "SelectionRead":
            self._return_file(invocation, self._pipe_of(arguments[0]))
        elif method == "SelectionWrite":
            read, write = os.pipe()
            self._fetched[arguments[0]].put(read)
            self._return_file(invocation, write)
        else:
            if method == "SelectionWriteDone" and not arguments[1]:
                self._fetched[arguments[0]].put(None)
            invocation.return_value(None)

    def _drop(self) -> None:
        if self._selection:
            self._selection.close()
            self._past.append(self._selection)
            self._selection = None

    def _pipe_of(self, kind: str) -> int:
        offer = self._reader.read("CLIPBOARD", kind)
        read, write = os.pipe()
        threading.Thread(target=_write, args=(write, offer.data if offer else b"")).start()
        return read

    @staticmethod
    def _return_file(invocation: Any, file: int) -> None:
        files = Gio.UnixFDList()
        files.append(file)
        os.close(file)
        invocation.return_value_with_unix_fd_list(GLib.Variant("(h)", (0,)), files)

    def _fetch(self, kind: str) -> bytes:
        """What the program gives for the type; in the thread of the display's selection."""
        serial = len(self._fetched) + 1
        fetched = self._fetched[serial] = queue.Queue()
        self._signal("SelectionTransfer", GLib.Variant("(osu)", (self._session, kind, serial)))
        file = fetched.get(timeout=Deadline("a pipe").remaining())
        if file is None:
            return b""
        with os.fdopen(file, "rb") as pipe:
            return pipe.read()

    def _tell(self, types: list[str]) -> None:
        options = {
            "mime_types": GLib.Variant("as", types),
            "session_is_owner": GLib.Variant("b", False),
        }
        self._signal("SelectionOwnerChanged", GLib.Variant("(oa{sv})", (self._session, options)))

    def _signal(self, name: str, arguments: GLib.Variant) -> None:
        self._emit(PATH, _INTERFACE, name, arguments)


def _write(file: int, data: bytes) -> None:
    with os.fdopen(file, "wb") as pipe:
        pipe.write(data)
