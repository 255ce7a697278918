# SPDX-License-Identifier: MIT
"""What GNOME Shell shows, as an extension of the tests' own tells it."""

import json
from dataclasses import dataclass
from pathlib import Path
from typing import Any

from ..message_bus import BusError, MessageBus
from ..waiting import wait_until
from ..wayland.x_focus import XFocus

_PROBE = ("org.quorvane.Probe", "/org/quorvane/Probe", "org.quorvane.Probe")
_SCREENSHOT = (
    "org.gnome.Shell.Screenshot",
    "/org/gnome/Shell/Screenshot",
    "org.gnome.Shell.Screenshot",
)

_LEAST_SIZE = 20  # pixels; smaller ones are no menus


@dataclass(frozen=True)
class ShellWindow:
    """A window as the shell sees it; the names are those of the extension."""

    title: str
    pid: int
    isX11: bool
    frame: list[int]
    isAbove: bool
    isOnAllWorkspaces: bool
    isInTaskbar: bool
    hasFocus: bool
    wantsAttention: bool


class Shell:
    """One connection to the shell's extension and to its own services."""

    def __init__(self, address: str) -> None:
        self._bus = MessageBus(address)
        self._x_focus: XFocus | None = None
        wait_until(lambda: self._bus.has_owner(_PROBE[0]), "a usable GNOME Shell", interval=0.05)

    def close(self) -> None:
        """Ends the connections."""
        self._bus.close()
        if self._x_focus:
            self._x_focus.close()

    def follow_x_server(self, display: str) -> None:
        """From now on a window of X11 has the keyboard only if that server gives it to it, too."""
        self._x_focus = XFocus(display)

    def windows(self) -> list[ShellWindow]:
        """Every window, of X11 and of Wayland; menus and the like are none."""
        return [ShellWindow(**window) for window in json.loads(self._ask("Windows"))]

    def window(self, title: str) -> ShellWindow | None:
        """The window of a title, if there is one."""
        return next((window for window in self.windows() if window.title == title), None)

    def focused(self) -> str | None:
        """The title of the window that has the keyboard."""
        return next((window.title for window in self.windows() if window.hasFocus), None)

    def wait_focused(self, title: str) -> ShellWindow:
        """Waits until the window of a title has the keyboard."""

        def has_focus() -> ShellWindow | None:
            window = self.window(title)
            return window if window and self._has_keyboard(window) else None

        return wait_until(has_focus, f'the focus on "{title}"')

    def bring_to_front(self, title: str) -> ShellWindow:
        """Waits for the window of a title, and gives it the keyboard as the user does.

        The shell may leave it where it was with a window that comes while it is busy.
        """
        wait_until(lambda: self.window(title), f'"{title}"')
        found = f"actors.find(actor => actor.meta_window.title === {json.dumps(title)})"
        now = "global.display.get_current_time_roundtrip()"
        self.evaluate(
            f"{{ const actors = global.get_window_actors(); {found}.meta_window.activate({now}); }}"
        )
        return self.wait_focused(title)

    def notifications(self) -> list[tuple[str, str]]:
        """Title and body of what the user has been told and has not put away."""
        return [(title, body) for title, body in json.loads(self._ask("Notifications"))]

    def evaluate(self, code: str) -> Any:
        """The value of an expression inside the shell."""
        return json.loads(self._ask("Evaluate", "(s)", code))

    def has_remote_access(self) -> bool:
        """Whether a program may type; the user sees an indicator in the bar then."""
        return self.evaluate("Main.panel.statusArea.screenSharing.visible")

    def remote_access_indicator(self) -> tuple[float, float]:
        """Where a click ends that permission."""
        return self.middle_of("Main.panel.statusArea.screenSharing")

    def menu(self) -> tuple[int, int, int, int] | None:
        """Where an open menu of a program of X11 is, once a press would go to it."""
        shown = "actor.meta_window.is_override_redirect() && actor.mapped"
        frame = "(({x, y, width, height}) => [x, y, width, height])(actor.meta_window.get_frame_rect())"
        actors = f"global.get_window_actors().filter(actor => {shown})"
        frames = self.evaluate(f"{actors}.map(actor => {frame})")
        return next((tuple(each) for each in frames if min(each[2:]) > _LEAST_SIZE), None)

    def middle_of(self, actor: str) -> tuple[float, float]:
        """Where a part of the shell is on the screen, by an expression for it."""
        left, top = self.evaluate(f"{actor}.get_transformed_position()")
        width, height = self.evaluate(f"{actor}.get_transformed_size()")
        return left + width / 2, top + height / 2

    def screenshot(self, file: Path) -> None:
        """Writes a picture of the whole screen."""
        # The shell lets the owner of this name take pictures, once it has heard of it.
        self._bus.request_name("org.gnome.Screenshot")
        wait_until(lambda: self._take(file), "a picture of the screen", interval=0.05)

    def _has_keyboard(self, window: ShellWindow) -> bool:
        if not window.hasFocus or not window.isX11 or not self._x_focus:
            return window.hasFocus
        return self._x_focus.is_given(window.pid, window.title)

    def _take(self, file: Path) -> bool:
        try:
            return self._bus.call(*_SCREENSHOT, "Screenshot", "(bbs)", True, False, str(file))[0]
        except BusError:
            return False

    def _ask(self, method: str, signature: str = "()", *values: str) -> str:
        return self._bus.call(*_PROBE, method, signature, *values)[0]
