# SPDX-License-Identifier: MIT
"""KWin keeps windows behind that the user did not ask for: a launcher's token says that they did."""

from pathlib import Path

from harness.keys import Key
from harness.kwin.case import KwinCase
from harness.kwin.session import KwinSession
from harness.launching import open_launcher
from harness.quorvane import BUS_NAME, Quorvane

_STRICT = """
[Windows]
FocusStealingPreventionLevel=4
"""


class Activation(KwinCase):
    """The strictest level, and a program that runs already."""

    def make_session(self) -> KwinSession:
        return KwinSession(settings=_STRICT)

    def setUp(self) -> None:
        super().setUp()
        # As where there is no XWayland.
        self.quorvane = Quorvane(self.session, QT_QPA_PLATFORM="wayland")
        self.quorvane.wait_active()
        self.file = self.session.directory("data") / "applications" / f"{BUS_NAME}.desktop"

    def test_a_panel_behind_others_comes_to_the_front_by_a_launchers_token(self) -> None:
        self.launch(self.file)
        self.quorvane.wait_active()

    def test_preferences_behind_others_do_so_too(self) -> None:
        for _ in ("shown", "behind"):
            self.launch(self.file, "preferences")
            windows = self.session.windows
            windows.wait(
                lambda: windows.title(windows.active() or 0) == "Quorvane Preferences",
                "the preferences in front",
            )

    def launch(self, file: Path, *action: str) -> None:
        """What a user does in a menu."""
        open_launcher(self.session, str(file), *action)
        self.keyboard.tap(Key.RETURN)
