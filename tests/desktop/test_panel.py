# SPDX-License-Identifier: MIT
"""The panel as a whole: its header, its height, its keys, and what a screen reader is told."""

from harness.accessible import Accessible, State
from harness.case import DesktopCase
from harness.keys import INSERT, Key
from harness.quorvane import Quorvane
from harness.waiting import wait_until


class PanelAlone(DesktopCase):
    """The panel, with nothing behind it."""

    def setUp(self) -> None:
        super().setUp()
        self.quorvane = Quorvane(self.session)
        self.quorvane.wait_active()
        self.tree = self.quorvane.tree()

    def height(self) -> int:
        window = self.quorvane.panel()
        assert window is not None
        return self.session.windows.frame(window)[3]

    def wait_focused(self, role: str, name: str) -> None:
        wait_until(
            lambda: self.tree.find_role(role, name).has(State.FOCUSED), f"focus on {role} {name}"
        )

    def tick(self, box: str) -> None:
        self.mouse.click(self.tree.find_role("check box", box))

    def test_everything_that_takes_the_focus_has_a_name(self) -> None:
        self.tick("to")
        self.tree.find_described("push button", "End date")
        focusable = [found for found in self.tree.showing() if found.has(State.FOCUSABLE)]
        self.assertGreater(len(focusable), 20)
        nameless = [found.role for found in focusable if not found.name]
        self.assertEqual(nameless, [])

    def test_popovers_have_no_nameless_control_either(self) -> None:
        for opener, inside in (
            (self.tree.find_described("push button", "Start date"), "Next month"),
            (self.tree.find_described("push button", "Start time"), "Hour"),
            (self.tree.find_role("button menu", "More"), "Quit Quorvane"),
            (self.tree.find_role("push button", "Add time zone"), "Done"),
        ):
            self.mouse.click(opener)
            self.tree.find(inside)
            focusable = [found for found in self.tree.showing() if found.has(State.FOCUSABLE)]
            self.assertEqual([found.role for found in focusable if not found.name], [])
            self.keyboard.tap(Key.ESCAPE)
            wait_until(lambda: not self.is_shown(inside), f"{inside} to be gone")

    def is_shown(self, name: str) -> bool:
        return self.tree.shows_named(name)

    def test_labels_name_their_groups(self) -> None:
        groups = [found.name for found in self.tree.showing() if found.role == "panel"]
        for name in ("When", "Time Zones", "Format", "Preview"):
            self.assertIn(name, groups)

    def test_height_follows_what_appears_and_nothing_above_it_moves(self) -> None:
        before = self.height()
        box = self.tree.find_role("check box", "to").extents
        self.tick("to")
        # A row of chips and the space above it; the longer output may take more lines.
        wait_until(lambda: self.height() >= before + 34, "the panel to grow by a row")
        self.assertEqual(self.tree.find_role("check box", "to").extents, box)
        self.tick("to")
        wait_until(lambda: self.height() == before, "the panel to shrink again")

    def test_menu_is_used_by_keyboard(self) -> None:
        more = self.tree.find_role("button menu", "More")
        self.mouse.click(more)
        self.tree.find_role("menu item", "Preferences…")
        self.keyboard.tap(Key.ESCAPE)
        self.wait_focused("button menu", "More")
        self.keyboard.tap(Key.SPACE)
        self.wait_focused("menu item", "Preferences…")
        self.keyboard.tap(Key.END)
        self.keyboard.tap(Key.RETURN)
        self.assertEqual(self.quorvane.process.wait(10), 0)

    def test_ctrl_comma_opens_the_preferences_and_ctrl_q_quits(self) -> None:
        self.keyboard.tap(Key.CONTROL, Key.COMMA)
        self.quorvane.wait_hidden()
        windows = self.session.windows
        pid = self.quorvane.process.pid
        windows.wait(
            lambda: windows.of_process(pid, "Quorvane Preferences"), "the preferences to show"
        )
        self.quorvane.action("toggle")
        self.quorvane.wait_active()
        start = self.tree.find_described("push button", "Start date")
        wait_until(lambda: start.has(State.FOCUSED), "the panel to have the focus")
        self.keyboard.tap(Key.CONTROL, Key.Q)
        self.assertEqual(self.quorvane.process.wait(10), 0)

    def test_without_a_zone_nothing_below_reacts_until_one_is_added(self) -> None:
        self.mouse.click(self.zone("Remove"))
        insert = self.tree.find_role("push button", "Insert")
        wait_until(lambda: not insert.has(State.ENABLED), "Insert to be disabled")
        self.keyboard.tap(*INSERT)
        self.mouse.click(self.tree.find_role("combo box", "Format"))
        self.mouse.click(self.zone("Add"))
        wait_until(lambda: insert.has(State.ENABLED), "Insert to be enabled")
        self.assertTrue(self.quorvane.is_active())
        self.assertFalse(self.tree.shows("list item", "Medium"))

    def zone(self, description: str) -> Accessible:
        return self.tree.find_described("push button", description)

    def test_panel_is_dragged_by_its_background(self) -> None:
        window = self.quorvane.wait_active()
        left, top, width, height = self.session.windows.frame(window)
        # In the margin, level with the preview.
        x, y = left + 6, self.tree.find_role("text", "Preview").extents[1] + 4
        self.mouse.press_at(x, y)
        self.addCleanup(self.mouse.release)

        def follows() -> bool:
            # The window manager sees what moves once it has taken the pointer over.
            self.mouse.move_to(x + 60, y + 40)
            self.mouse.move_to(x + 90, y + 70)
            return self.session.windows.frame(window)[:2] != (left, top)

        wait_until(follows, "the panel to follow the pointer")
        self.mouse.release()
        self.assertEqual(self.session.windows.frame(window)[2:], (width, height))


class PanelHeard(DesktopCase):
    """What the panel says by itself."""

    def test_copied_is_announced_and_taken_back(self) -> None:
        # A program asks who listens when it starts.
        names = self.session.accessibility.listen_for_names()
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.mouse.click(quorvane.tree().find_role("push button", "Copy"))
        names.wait_for("Copied")
        self.assertTrue(quorvane.is_active())
        self.clipboard.wait_data("UTF8_STRING", quorvane.preview().encode())
        names.wait_for("Copy")


class PanelOverAnEditor(DesktopCase):
    """Keys of the panel that end in another application."""

    def test_ctrl_return_inserts_from_an_open_popover(self) -> None:
        quorvane = self.hidden_quorvane()
        editor = self.editor()
        self.summon(quorvane)
        self.mouse.click(quorvane.tree().find_described("push button", "Start time"))
        quorvane.tree().find_role("spin box", "Hour")
        text = quorvane.preview()
        self.keyboard.tap(*INSERT)
        editor.wait_text(text)
