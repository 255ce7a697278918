# SPDX-License-Identifier: MIT
"""The program in namespaces of its own: other folders, or no network, with nothing else changed."""

import os
import subprocess

from .private_session import PrivateSession
from .quorvane import Quorvane

# Those who are not root may have namespaces of users.
_UNSHARE = ["unshare"] if os.geteuid() == 0 else ["unshare", "--user", "--map-current-user"]
_UNSHARE_WITH_RIGHTS = _UNSHARE if os.geteuid() == 0 else [*_UNSHARE, "--keep-caps"]


class ConfinedQuorvane(Quorvane):
    """One run of the program behind a command that prepares its surroundings and becomes it."""

    def __init__(
        self, session: PrivateSession, wrapper: list[str], *options: str, **environment: str
    ) -> None:
        self._wrapper = wrapper
        super().__init__(session, *options, **environment)

    def launch(self, *options: str) -> subprocess.Popen[bytes]:
        command = [*self._wrapper, str(self._session.program), *options]
        return self._session.start(command, self._environment)


def with_mounts(*mounts: str) -> list[str]:
    """A wrapper that mounts what a shell's lines say, for the program alone."""
    script = "\n".join(["set -e", *mounts, 'exec "$0" "$@"'])
    return [*_UNSHARE_WITH_RIGHTS, "--mount", "sh", "-c", script]


def read_only(folder: os.PathLike[str]) -> list[str]:
    """A wrapper under which nothing in the folder can be changed, whoever the user is."""
    return with_mounts(f"mount --bind {folder} {folder}", f"mount -o remount,bind,ro {folder}")


def full_disk(folder: os.PathLike[str]) -> list[str]:
    """A wrapper under which the folder has what it had, and no room for anything more."""
    return with_mounts(
        f"mount -t tmpfs -o size=4k,nr_inodes=8 quorvane-test {folder}.full",
        f"cp {folder}/* {folder}.full",
        f"mount --move {folder}.full {folder}",
    )


def without_network() -> list[str]:
    """A wrapper under which there is no network, not even the machine's own address."""
    return [*_UNSHARE, "--net"]
