# SPDX-License-Identifier: MIT
"""The panel among virtual desktops, and the program without icons."""

from harness.case import DesktopCase
from harness.quorvane import Quorvane, settings_file


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
