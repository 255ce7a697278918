# SPDX-License-Identifier: MIT
"""A session of weston, whose compositor lets programs do nothing beyond their own windows."""

from contextlib import ExitStack

from .session import Session
from .waiting import wait_until

_CONFIGURATION = """\
[core]
idle-time=0
[shell]
panel-position=none
locking=false
animation=none
startup-animation=none
"""


class WestonSession(Session):
    """weston in a window of an X server, whose keyboard and pointer are the user's.

    Programs see weston alone; to be used inside of harness.sandbox.
    """

    backend = ""

    def __init__(self) -> None:
        super().__init__(None)

    def _begin(self, undo: ExitStack) -> None:
        super()._begin(undo)
        configuration = self.root / "weston.ini"
        configuration.write_text(_CONFIGURATION)
        name = "weston"
        options = ["--backend=x11-backend.so", "--use-pixman", "--width=1280", "--height=800"]
        compositor = self.start(
            ["weston", *options, f"--socket={name}", f"--config={configuration}"]
        )
        wait_until((self.directory("run") / name).exists, "weston")
        window = self.windows.wait(
            lambda: next(iter(self.windows.shown()), None), "the window of weston"
        )
        self.windows.focus(window)
        if compositor.poll() is not None:
            raise RuntimeError(f"no weston:\n{self.logs()}")
        del self.environment["DISPLAY"]
        self.environment |= {"WAYLAND_DISPLAY": name, "XDG_SESSION_TYPE": "wayland"}
