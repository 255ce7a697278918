# SPDX-License-Identifier: MIT
"""What a screen reader is told of the texts that change."""

from typing import Any

from gi.repository import Gio, GLib

from .message_bus import MessageBus
from .waiting import wait_until

Heard = tuple[str, str | int]
"""What happened, "insert", "delete" or "caret", and the text or the caret's place."""


class TextEvents:
    """Hears the programs that start from now on."""

    def __init__(self, bus: MessageBus) -> None:
        self._heard: list[Heard] = []
        self._context = GLib.MainContext.default()
        for member in ("TextChanged", "TextCaretMoved"):
            bus.call(
                "org.a11y.atspi.Registry",
                "/org/a11y/atspi/registry",
                "org.a11y.atspi.Registry",
                "RegisterEvent",
                "(sas)",
                f"Object:{member}",
                [],
            )
            bus.connection.signal_subscribe(
                None,
                "org.a11y.atspi.Event.Object",
                member,
                None,
                None,
                Gio.DBusSignalFlags.NONE,
                self._hear,
            )

    def wait_for(self, last: Heard) -> list[Heard]:
        """Waits until that is heard, and returns all since the last time."""

        def is_heard() -> bool:
            while self._context.iteration(False):
                pass
            return last in self._heard

        wait_until(is_heard, f"{last} to be heard")
        end = self._heard.index(last) + 1
        heard, self._heard = self._heard[:end], self._heard[end:]
        return heard

    def _hear(
        self,
        _connection: Any,
        _sender: str,
        _path: str,
        _interface: str,
        member: str,
        values: GLib.Variant,
    ) -> None:
        kind, place, _length, text = values.unpack()[:4]
        self._heard.append(("caret", place) if member == "TextCaretMoved" else (kind, text))
