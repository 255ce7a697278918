# SPDX-License-Identifier: MIT
"""Where the panel stands: over restarts, screens that come and go, and virtual desktops."""

import json

from harness.case import DesktopCase
from harness.quorvane import Quorvane, settings_file
from harness.waiting import wait_until

_CONTENT_WIDTH = 504


class PlaceCase(DesktopCase):
    """The panel's place, seen and changed."""

    def frame(self, quorvane: Quorvane) -> tuple[int, int, int, int]:
        window = quorvane.panel()
        assert window is not None
        return self.session.windows.frame(window)

    def move(self, quorvane: Quorvane, x: int, y: int) -> None:
        window = quorvane.wait_active()
        self.session.windows.move(window, x, y)
        wait_until(lambda: self.saved_place() == (x, y), f"the panel at {x}, {y}")

    def saved_place(self) -> tuple[int, int] | None:
        file = self.session.directory("state") / "quorvane" / "windows.json"
        frame = json.loads(file.read_text()).get("PanelV2") if file.exists() else None
        return (frame["x"], frame["y"]) if frame else None


class PanelsPlace(PlaceCase):
    """What the user gave the panel stays."""

    def test_the_place_outlives_three_restarts(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 60, 40)
        before = self.frame(quorvane)
        for _ in range(3):
            self.assertEqual(quorvane.quit(), 0)
            quorvane = Quorvane(self.session)
            quorvane.wait_active()
            self.assertEqual(self.frame(quorvane), before)

    def test_a_killed_program_has_saved_its_place(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 70, 50)
        quorvane.process.kill()
        quorvane.process.wait()
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.assertEqual(self.frame(quorvane)[:2], (70, 50))

    def test_a_height_that_the_user_gives_goes_to_the_preview(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 60, 40)
        preview = quorvane.tree().find_role("text", "Preview")
        before = preview.extents[3]
        height = self.frame(quorvane)[3]
        window = quorvane.panel()
        assert window is not None
        self.session.windows.resize(window, _CONTENT_WIDTH, height + 60)
        wait_until(lambda: preview.extents[3] == before + 60, "the preview to have the surplus")
        # A row more takes it back from there.
        self.mouse.click(quorvane.tree().find_role("check box", "to"))
        wait_until(lambda: preview.extents[3] < before + 60, "the preview to give some of it")
        self.assertEqual(self.frame(quorvane)[3], height + 60)


class Screens(PlaceCase):
    """Two screens, of which one goes."""

    def setUp(self) -> None:
        super().setUp()
        self.session.run(["xrandr", "--setmonitor", "A", "640/169x800/211+0+0", "screen"])
        self.session.run(["xrandr", "--setmonitor", "B", "640/169x800/211+640+0", "none"])

    def lose_the_second(self) -> None:
        self.session.run(["xrandr", "--delmonitor", "B"])

    def wait_centred_on_the_first(self, quorvane: Quorvane) -> None:
        wait_until(
            lambda: self.frame(quorvane)[0] == (640 - _CONTENT_WIDTH) // 2,
            "the panel in the middle of the first screen",
        )

    def test_a_screen_lost_while_the_panel_shows(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 700, 100)
        self.lose_the_second()
        # Whatever corner of it the window manager may have pulled over there.
        self.wait_centred_on_the_first(quorvane)
        self.assertTrue(quorvane.is_active())

    def test_a_screen_lost_while_the_panel_is_hidden(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 700, 100)
        quorvane.hide()
        self.lose_the_second()
        self.summon(quorvane)
        self.wait_centred_on_the_first(quorvane)

    def test_a_screen_lost_between_two_runs(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 700, 100)
        quorvane.quit()
        self.lose_the_second()
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.wait_centred_on_the_first(quorvane)

    def test_a_panel_that_a_screen_still_shows_stays(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 400, 100)
        self.lose_the_second()
        quorvane.hide()
        self.summon(quorvane)
        self.assertEqual(self.frame(quorvane)[:2], (400, 100))


class Desktops(DesktopCase):
    """Virtual desktops, taskbar and both icons."""

    def test_the_panel_follows_to_another_desktop(self) -> None:
        quorvane = Quorvane(self.session)
        panel = quorvane.wait_active()
        windows = self.session.windows
        windows.show_desktop(1)
        self.assertEqual(quorvane.panel(), panel)
        self.assertTrue(windows.is_on_all_desktops(panel))
        quorvane.action("toggle")
        quorvane.wait_hidden()
        self.summon(quorvane)
        self.assertTrue(windows.is_on_all_desktops(panel))

    def test_the_dock_switch_moves_both_windows_in_and_out_of_the_taskbar(self) -> None:
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        quorvane.action("preferences")
        quorvane.wait_hidden()
        windows = self.session.windows
        pid = quorvane.process.pid
        preferences = windows.wait(
            lambda: windows.of_process(pid, "Quorvane Preferences"), "the preferences"
        )
        quorvane.action("toggle")
        panel = quorvane.wait_active()
        switch = quorvane.tree().find_role(
            "check box", "Show windows in taskbar"
        )
        skip = "_NET_WM_STATE_SKIP_TASKBAR"
        both = (panel, preferences)
        for is_regular in (True, False):
            switch.press()
            windows.wait(
                lambda: all((skip in windows.states(each)) != is_regular for each in both),
                "both windows to change sides",
            )
            self.assertEqual(quorvane.panel(), panel)

    def test_with_both_icons_off_a_second_start_shows_the_interface(self) -> None:
        file = settings_file(self.session)
        file.parent.mkdir()
        file.write_text('{"showInMenuBar": false, "showInDock": false}')
        quorvane = Quorvane(self.session)
        quorvane.hide()
        self.assertEqual(quorvane.launch().wait(10), 0)
        quorvane.wait_active()
        quorvane.action("preferences")
        quorvane.tree().find("Open Quorvane from the applications menu to reach Preferences.")
