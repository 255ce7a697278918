# SPDX-License-Identifier: MIT
"""The workflow through the popover at the icon, and from one presentation to the other."""

import json

from harness.accessible import State
from harness.case import DesktopCase
from harness.keys import INSERT, SHORTCUT, Key
from harness.quorvane import Quorvane, settings_file, wait_stored
from harness.tray import Tray
from harness.waiting import wait_until


class Popover(DesktopCase):
    """The interface as a popover, over an editor."""

    def setUp(self) -> None:
        super().setUp()
        self.tray = Tray(self.session)
        self.tray.start()
        file = settings_file(self.session)
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps({"presentationMode": "Popover"}))
        self.quorvane = Quorvane(self.session)
        self.wait_popover()

    def wait_popover(self) -> None:
        windows = self.session.windows
        windows.wait(windows.menu, "the popover")
        # It answers only once it has the keyboard, too.
        self.quorvane.tree().find_role("push button", "Close")

    def wait_no_popover(self) -> None:
        windows = self.session.windows
        windows.wait(lambda: windows.menu() is None, "the end of the popover")

    def open_over_an_editor(self) -> None:
        self.keyboard.tap(Key.ESCAPE)
        self.wait_no_popover()
        self.target = self.editor()
        self.keyboard.tap(*SHORTCUT)
        self.wait_popover()

    def test_the_text_arrives_in_the_application_that_stays_active(self) -> None:
        self.open_over_an_editor()
        self.target.wait_active()
        text = self.quorvane.preview()
        self.keyboard.tap(*INSERT)
        self.target.wait_text(text)
        self.wait_no_popover()

    def test_keys_reach_what_has_the_focus_and_what_it_opens(self) -> None:
        self.open_over_an_editor()
        tree = self.quorvane.tree()
        start = tree.find_described("push button", "Start date")
        wait_until(lambda: start.has(State.FOCUSED), "focus on the start")
        self.keyboard.tap(Key.TAB)
        self.keyboard.tap(Key.SPACE)
        hour = tree.find_role("spin box", "Hour")
        wait_until(lambda: hour.has(State.FOCUSED), "focus on the hour")
        self.keyboard.tap(Key.DIGIT_7)
        wait_until(lambda: " at 7:" in self.quorvane.preview(), "seven o'clock in the preview")
        text = self.quorvane.preview()
        self.keyboard.tap(*INSERT)
        self.target.wait_text(text)

    def test_escape_closes_what_is_open_and_then_the_popover(self) -> None:
        tree = self.quorvane.tree()
        self.mouse.click(tree.find_described("push button", "Start time"))
        tree.find_role("spin box", "Hour")
        self.keyboard.tap(Key.ESCAPE)
        wait_until(lambda: not tree.shows("spin box", "Hour"), "the clock to be gone")
        self.wait_popover()
        self.keyboard.tap(Key.ESCAPE)
        self.wait_no_popover()

    def test_the_shortcut_hides_it_also_while_something_is_open(self) -> None:
        tree = self.quorvane.tree()
        self.mouse.click(tree.find_described("push button", "Start time"))
        tree.find_role("spin box", "Hour")
        self.keyboard.tap(*SHORTCUT)
        self.wait_no_popover()
        self.keyboard.tap(*SHORTCUT)
        self.wait_popover()
        self.assertFalse(tree.shows("spin box", "Hour"))

    def test_a_click_elsewhere_closes_it(self) -> None:
        self.mouse.click_at(20, 400)
        self.wait_no_popover()

    def test_the_header_leads_to_the_panel_and_back(self) -> None:
        self.mouse.click(self.quorvane.tree().find_role("push button", "Open as panel"))
        self.quorvane.wait_active()
        self.assertIsNone(self.session.windows.menu())
        self.mouse.click(self.quorvane.tree().find_role("push button", "Open as popover at the tray icon"))
        self.wait_popover()
        wait_stored(self.session, presentationMode="Popover")

    def test_the_icon_switched_off_in_the_preferences_leaves_with_its_popover(self) -> None:
        self.quorvane.action("preferences")
        self.wait_no_popover()
        switch = self.quorvane.tree().find_role("check box", "Show icon in system tray")
        self.keyboard.tap(*SHORTCUT)
        self.wait_popover()
        switch.press()
        self.wait_no_popover()
        self.tray.wait_no_icon()
        switch.press()
        self.tray.wait_icon()
