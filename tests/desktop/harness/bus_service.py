# SPDX-License-Identifier: MIT
"""A service on the session bus that answers while the test waits for something else."""

import threading
from abc import ABC, abstractmethod
from typing import Any

from gi.repository import Gio, GLib

from .message_bus import MessageBus


class BusService(ABC):
    """One object with its interfaces, served in a thread of its own from the start to close()."""

    def __init__(self, address: str, name: str, path: str, introspection: str) -> None:
        self.asked = threading.Event()
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        ready = threading.Event()
        self._thread = threading.Thread(
            target=self._serve, args=(address, name, path, introspection, ready)
        )
        self._thread.start()
        ready.wait()

    def close(self) -> None:
        """Ends the service as a crash would."""
        # From inside: a loop that does not run yet would forget it.
        end = GLib.idle_source_new()
        end.set_callback(lambda *_: self._loop.quit())
        end.attach(self._context)
        self._thread.join()
        self._bus.close()

    @abstractmethod
    def _answer(self, *call: Any) -> None:
        """One call, as Gio hands it on: the method is the fifth, the invocation the last."""

    def _read(self, *call: Any) -> GLib.Variant | None:
        """A property that somebody asks for, whose name is the fifth; none has one by default."""
        return None

    def _serve(
        self, address: str, name: str, path: str, introspection: str, ready: threading.Event
    ) -> None:
        self._context.push_thread_default()
        self._bus = MessageBus(address)
        for interface in Gio.DBusNodeInfo.new_for_xml(introspection).interfaces:
            self._bus.connection.register_object(path, interface, self._answer, self._read, None)
        self._bus.request_name(name)
        ready.set()
        self._loop.run()
        self._context.pop_thread_default()
