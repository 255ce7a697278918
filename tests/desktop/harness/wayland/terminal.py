# SPDX-License-Identifier: MIT
"""A terminal of Wayland, and what was typed into it."""

from ..private_session import PrivateSession
from ..targets import Target


class Foot(Target):
    """foot, whose terminal line goes into a file untouched."""

    def __init__(self, session: PrivateSession) -> None:
        self._typed = session.root / "typed-in-foot"
        self._typed.touch()
        command = ["sh", "-c", 'stty raw -echo; exec cat >"$0"', str(self._typed)]
        super().__init__(session, ["foot", *command])

    def text(self) -> str:
        return self._typed.read_text()
