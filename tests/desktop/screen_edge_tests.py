# SPDX-License-Identifier: MIT
"""What opens over a panel in the corner of the screen, for every kind of desktop."""

import json
from collections.abc import Callable

from harness.accessible import Accessible, State
from harness.case import DesktopCase
from harness.keys import Key
from harness.quorvane import Quorvane, settings_file
from harness.waiting import wait_until
from harness.windows import Windows

Frame = tuple[int, int, int, int]

# The heights are what the content needs, and some points more.
_WIDTH, _HEIGHT, _HEIGHT_OF_RANGE = 504, 496, 566


class ScreenEdge(DesktopCase):
    """The panel's lower right corner is the screen's: nothing has room below or beside it.

    Where a thing says that it is, it is: a click there by the pointer does what it should.
    """

    size = (1280, 800)
    """The screen, in points."""

    def test_the_calendar_of_the_lowest_row(self) -> None:
        self.begin(_HEIGHT_OF_RANGE)
        self.show_range()
        day = self.tree.find_described("push button", "End date")
        before = day.name
        self.open(day)
        following = self.tree.find_role("push button", "Next month")
        self.expect_inside("push button", "Next month", "Previous month", "Today")
        self.mouse.click(following)
        # The day itself: from the next month's first one to the second.
        for key in (Key.HOME, Key.RIGHT, Key.RETURN):
            self.keyboard.tap(key)
        wait_until(lambda: day.name != before, "another day")
        wait_until(lambda: not self.tree.shows("push button", "Next month"), "its end")

    def test_the_time_of_the_lowest_row(self) -> None:
        self.begin(_HEIGHT_OF_RANGE)
        self.show_range()
        self.open(self.tree.find_described("push button", "End time"))
        minute = self.tree.find_role("spin box", "Minute")
        self.expect_inside("spin box", "Hour", "Minute")
        self.mouse.click(minute)
        wait_until(lambda: minute.has(State.FOCUSED), "the focus where the pointer pressed")

    def test_the_list_of_formats(self) -> None:
        self.begin(_HEIGHT)
        before = self.quorvane.preview()
        self.open(self.tree.find_role("combo box", "Format"))
        wanted = self.tree.find_role("list item", "ISO 8601")
        self.expect_inside("list item")
        self.mouse.click(wanted)
        wait_until(lambda: self.quorvane.preview() != before, "another format")

    def test_the_menu_of_the_header(self) -> None:
        self.begin(_HEIGHT)
        opened = self.next_menu()
        self.open(self.tree.find_role("button menu", "More"))
        wanted = self.tree.find_role("menu item", "Preferences…")
        self.expect_inside("menu item")
        # A press goes to what the screen shows, which may be later than what the program tells.
        wait_until(lambda: self.is_inside(opened()), "a menu inside of the screen")
        self.mouse.click(wanted)
        self.tree.find_role("push button", "Record new shortcut")

    def test_the_menu_of_the_preview(self) -> None:
        self.begin(_HEIGHT)
        preview = self.tree.find_role("text", "Preview")
        preview.focus()
        wait_until(lambda: preview.has(State.FOCUSED), "the focus in the preview")
        opened = self.next_menu()
        self.keyboard.tap(Key.MENU)
        wait_until(lambda: self.is_inside(opened()), "a menu inside of the screen")
        # The last item selects all.
        self.keyboard.tap(Key.UP)
        self.keyboard.tap(Key.RETURN)
        wait_until(preview.has_selection, "the selection")

    def test_the_sheet_of_time_zones(self) -> None:
        self.begin(_HEIGHT)
        self.open(self.tree.find_role("push button", "Add time zone"))
        search = self.tree.find_role("text", "Search")
        wait_until(lambda: search.has(State.FOCUSED), "the focus in the search")
        self.expect_inside("text", "Search")
        self.keyboard.tap(Key.T)
        wait_until(lambda: search.text == "t", "the letter in the search")

    def next_menu(self) -> Callable[[], Frame]:
        """Where the menu is that opens next; programs do not tell it of all of theirs."""
        windows = Windows(self.session.display)
        self.addCleanup(windows.close)
        return lambda: windows.frame(windows.wait(windows.menu, "a menu"))

    def begin(self, height: int) -> None:
        """As the user has left the panel in an earlier run; where it has room it does not move."""
        left, top = self.size[0] - _WIDTH, self.size[1] - height
        frame = {"x": left, "y": top, "width": _WIDTH, "height": 1}
        folder = self.session.directory("state") / "quorvane"
        folder.mkdir()
        (folder / "windows.json").write_text(json.dumps({"PanelV2": frame}))
        # A line that came some time after the start would move all else.
        settings = settings_file(self.session)
        settings.parent.mkdir(parents=True, exist_ok=True)
        settings.write_text(json.dumps({"shortcutHintDismissed": True}))
        self.quorvane = Quorvane(self.session)
        self.quorvane.wait_active()
        self.tree = self.quorvane.tree()

    def show_range(self) -> None:
        self.tree.find_role("check box", "to").press()

    def open(self, control: Accessible) -> None:
        """By the keyboard: compositors of Wayland let a key or a button open something."""
        control.focus()
        wait_until(lambda: control.has(State.FOCUSED), f"the focus on {control.name}")
        self.keyboard.tap(Key.SPACE)

    def expect_inside(self, role: str, *names: str) -> None:
        """All that shows of a role, and of these names if there are any, comes onto the screen."""

        def is_inside() -> bool:
            frames = self.frames(role)
            wanted = names or frames
            return bool(frames) and all(self.is_inside(frames.get(name)) for name in wanted)

        # Sheets move in from the edge.
        wait_until(is_inside, f"each {role} inside of the screen, not {self.frames(role)}")

    def frames(self, role: str) -> dict[str, Frame]:
        """Where all is that shows of a role."""
        return {each.name: each.extents for each in self.tree.showing() if each.role == role}

    def is_inside(self, frame: Frame | None) -> bool:
        if frame is None:
            return False
        left, top, width, height = frame
        right, bottom = left + width, top + height
        return 0 <= left and 0 <= top and right <= self.size[0] and bottom <= self.size[1]
