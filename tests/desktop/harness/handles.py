# SPDX-License-Identifier: MIT
"""What a program holds of its system and of its X server."""

from typing import NamedTuple

from Xlib.display import Display
from Xlib.ext.res import LocalClientPIDMask

from .memory import Memory


class Handles(NamedTuple):
    """How many of each kind."""

    files: int
    threads: int
    x_resources: int

    @classmethod
    def of(cls, display: Display, pid: int) -> "Handles":
        """What the process holds at this moment."""
        memory = Memory(pid)
        return cls(memory.files(), memory.threads(), _x_resources(display, pid))


def _x_resources(display: Display, pid: int) -> int:
    """Windows, pixmaps, atoms and all else that the server keeps for the program's connections."""
    return sum(
        kind.count
        for client in display.res_query_clients().clients
        if _is_of(display, client.resource_base, pid)
        for kind in display.res_query_client_resources(client.resource_base).types
    )


def _is_of(display: Display, resource: int, pid: int) -> bool:
    clients = display.res_query_client_ids([(resource, LocalClientPIDMask)]).ids
    return any(client.value and client.value[0] == pid for client in clients)
