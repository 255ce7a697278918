# SPDX-License-Identifier: MIT
"""What the interfaces of a portal have in common: requests that are answered by a signal."""

from typing import Any

from gi.repository import GLib

from .bus_service import BusService

PATH = "/org/freedesktop/portal/desktop"

SUCCESS, REFUSED = range(2)


class RequestPortal(BusService):
    """One interface of a portal, with one client and one session at a time."""

    def __init__(self, session_bus_address: str, introspection: str) -> None:
        self._client = ""
        self._request = ""
        self._session = ""
        super().__init__(
            session_bus_address, "org.freedesktop.portal.Desktop", PATH, introspection
        )

    def _begin_request(self, client: str, options: dict[str, Any], invocation: Any) -> None:
        """Hands out the request that the call is about, and its session where it makes one."""
        self._client = client
        self._request = self._path_of("request", options["handle_token"])
        if "session_handle_token" in options:
            self._session = self._path_of("session", options["session_handle_token"])
        invocation.return_value(GLib.Variant("(o)", (self._request,)))

    def _respond(self, code: int, results: dict[str, GLib.Variant]) -> None:
        self._emit(
            self._request,
            "org.freedesktop.portal.Request",
            "Response",
            GLib.Variant("(ua{sv})", (code, results)),
        )

    def _respond_with_session(self) -> None:
        self._respond(SUCCESS, {"session_handle": GLib.Variant("s", self._session)})

    def _emit(self, path: str, interface: str, signal: str, arguments: GLib.Variant) -> None:
        self._bus.connection.emit_signal(self._client, path, interface, signal, arguments)

    def _path_of(self, kind: str, token: str) -> str:
        sender = self._client[1:].replace(".", "_")
        return f"{PATH}/{kind}/{sender}/{token}"
