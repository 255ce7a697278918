# SPDX-License-Identifier: MIT
"""Clipboard managers with a history, which read everything that is copied."""

import subprocess

from harness.session import Session
from harness.waiting import wait_until

_ANSWER_WITHIN = 30


class Manager:
    """A manager at work.

    Those of Debian 12 keep the passing text in their history, whatever hint goes with it; what they
    must not change is the text that arrives, and what the clipboard holds afterwards.
    """

    def __init__(self, session: Session, name: str) -> None:
        self._session = session
        self._process = session.start([name])
        if name == "copyq":
            wait_until(self._listens, "CopyQ to listen", interval=0.1)

    def stop(self) -> None:
        """Ends the manager."""
        self._session.stop(self._process)

    def _listens(self) -> bool:
        answer = subprocess.run(
            ["copyq", "size"],
            env=self._session.environment,
            capture_output=True,
            timeout=_ANSWER_WITHIN,
        )
        return answer.stdout.strip().isdigit()


MANAGERS = ("parcellite", "copyq")
