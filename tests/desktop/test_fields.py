# SPDX-License-Identifier: MIT
"""What other programs put into the text fields of Quorvane, and what they cannot hold up."""

import signal
import subprocess

from Xlib.display import Display

from harness.accessible import State
from harness.case import DesktopCase
from harness.dragging import Dragging
from harness.keys import SHORTCUT, Key
from harness.offer import plain_text
from harness.quorvane import Quorvane
from harness.screenshot import Picture
from harness.waiting import wait_until

_MIDDLE = 2

_SUCCESS = 0x1A7A37

_COPY = (Key.CONTROL, Key.C)
_PASTE = (Key.CONTROL, Key.V)
_PASTE_SELECTION = (Key.CONTROL, Key.SHIFT, Key.INSERT)
_SELECT_ALL = (Key.CONTROL, Key.A)


class TextFields(DesktopCase):
    """The field in which time zones are searched."""

    def setUp(self) -> None:
        super().setUp()
        self.heard = self.session.accessibility.listen_for_texts()
        self.quorvane = Quorvane(self.session)
        self.quorvane.wait_active()
        self.tree = self.quorvane.tree()
        self.mouse.click(self.tree.find_role("push button", "Add time zone"))
        self.field = self.tree.find_role("text", "Search")
        wait_until(lambda: self.field.has(State.FOCUSED), "focus in the search")

    def wait_text(self, text: str) -> None:
        wait_until(lambda: self.field.text == text, f'"{text}" in the field')

    def click_field(self, button: int) -> None:
        left, top, width, height = self.field.extents
        self.mouse.click_at(left + width // 2, top + height // 2, button)

    def stopped_owner(self, selection: str) -> subprocess.Popen[bytes]:
        """A program that owns a selection and hangs."""
        owner = self.clipboard.own(plain_text("never said"), selection)
        owner.send_signal(signal.SIGSTOP)
        self.addCleanup(owner.send_signal, signal.SIGCONT)
        return owner

    def assert_shortcut_toggles(self) -> None:
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_hidden()
        self.keyboard.tap(*SHORTCUT)
        self.quorvane.wait_active()

    def test_keys_paste_from_the_clipboard_and_from_the_selection(self) -> None:
        self.clipboard.own(plain_text("Lis"))
        self.clipboard.own(plain_text("bon"), "PRIMARY")
        self.keyboard.tap(*_PASTE)
        self.wait_text("Lis")
        self.keyboard.tap(*_PASTE_SELECTION)
        self.wait_text("Lisbon")
        self.tree.find_role("list item", "Lisbon")

    def test_menu_and_middle_button_paste(self) -> None:
        self.clipboard.own(plain_text("Lis"))
        self.clipboard.own(plain_text("bon"), "PRIMARY")
        self.paste_from_menu()
        self.wait_text("Lis")
        self.click_field(_MIDDLE)
        self.wait_text("Lisbon")

    def test_what_the_field_copied_itself_is_pasted(self) -> None:
        self.keyboard.tap(Key.T)
        self.wait_text("t")
        self.keyboard.tap(*_SELECT_ALL)
        # Who takes Ctrl+C is decided when it is pressed, and assistive technology delays other keys.
        wait_until(self.field.has_selection, "the text to be selected")
        self.keyboard.tap(*_COPY)
        self.keyboard.tap(Key.END)
        self.keyboard.tap(*_PASTE)
        self.wait_text("tt")

    def test_screen_reader_hears_of_a_paste_as_of_typing(self) -> None:
        self.clipboard.own(plain_text("ok"))
        self.keyboard.tap(Key.T)
        self.heard.wait_for(("caret", 1))
        self.keyboard.tap(*_PASTE)
        self.assertEqual(self.heard.wait_for(("caret", 3)), [("insert", "ok"), ("caret", 3)])
        self.keyboard.tap(Key.Y)
        self.assertEqual(self.heard.wait_for(("caret", 4)), [("insert", "y"), ("caret", 4)])

    def test_owner_that_hangs_holds_nothing_up(self) -> None:
        self.stopped_owner("CLIPBOARD")
        self.stopped_owner("PRIMARY")
        for name, paste, paste_in_haste in (
            ("Ctrl+V", self.paste_by_keys, self.paste_by_keys),
            ("middle button", self.paste_selection, self.paste_selection),
            ("menu", self.paste_from_menu, self.paste_from_menu_in_haste),
        ):
            with self.subTest(name):
                paste()
                self.keyboard.tap(Key.T)
                self.wait_text("t")
                self.keyboard.tap(Key.BACKSPACE)
                self.wait_text("")
                paste_in_haste()
                self.assert_shortcut_toggles()
                wait_until(lambda: self.field.has(State.FOCUSED), "focus in the search")

    def test_the_shortcut_closes_the_menu_and_the_field_keeps_the_focus(self) -> None:
        self.keyboard.tap(Key.MENU)
        self.assert_shortcut_toggles()
        wait_until(lambda: self.field.has(State.FOCUSED), "focus in the search")
        self.keyboard.tap(Key.T)
        self.wait_text("t")

    def use_format_field(self) -> None:
        """Goes on with the field of the custom format, into which its choice puts the caret."""
        self.keyboard.tap(Key.ESCAPE)
        wait_until(lambda: not self.tree.shows("text", "Search"), "no search")
        self.mouse.click(self.tree.find_role("combo box", "Format"))
        self.mouse.click(self.tree.find_role("list item", "Custom…"))
        # Not by a click: the panel grows for it, and moves.
        self.field = self.tree.find_role("text", "Custom format")
        wait_until(lambda: self.field.has(State.FOCUSED), "focus in the format")
        self.keyboard.tap(*_SELECT_ALL)
        self.keyboard.tap(Key.BACKSPACE)
        self.wait_text("")

    def test_owner_that_hangs_stops_no_timer(self) -> None:
        self.use_format_field()
        self.stopped_owner("CLIPBOARD")
        self.keyboard.tap(*_PASTE)
        self.mouse.click(self.tree.find_role("push button", "Copy"))
        wait_until(self.says_copied, "the button to say that it has copied")
        wait_until(lambda: not self.says_copied(), "the button to be as before")

    def says_copied(self) -> bool:
        """Whether anything is green, as only the outcome of Copy is."""
        window = self.quorvane.panel()
        assert window is not None
        display = Display(self.session.display)
        try:
            return Picture(display, window).has(_SUCCESS)
        finally:
            display.close()

    def drag(self, *silent: str) -> Dragging:
        """A text that another program drags over the panel."""
        panel = self.quorvane.panel()
        assert panel is not None
        drag = Dragging(self.session.display, panel, plain_text("Lisbon"))
        self.addCleanup(drag.close)
        drag.silent = frozenset(silent)
        return drag

    def test_text_of_another_program_is_dropped(self) -> None:
        self.use_format_field()
        left, top, width, height = self.field.extents
        drag = self.drag()
        wait_until(lambda: drag.move(left + width // 2, top + height // 2), "the field to take it")
        drag.drop()
        self.wait_text("Lisbon")

    def test_program_that_drags_and_hangs_holds_nothing_up(self) -> None:
        self.use_format_field()
        left, top, width, height = self.field.extents
        drag = self.drag("UTF8_STRING", "text/plain;charset=utf-8", "text/plain")
        self.assertFalse(drag.move(left + width // 2, top + height // 2))
        drag.drop()
        self.assert_shortcut_toggles()
        self.assertEqual(self.field.text, "")

    def paste_by_keys(self) -> None:
        self.keyboard.tap(*_PASTE)

    def paste_selection(self) -> None:
        self.click_field(_MIDDLE)

    def paste_from_menu(self) -> None:
        """Waits for the menu: with assistive technology a key is for what was open as it came."""
        self.keyboard.tap(Key.MENU)
        windows = self.session.windows
        windows.wait(windows.menu, "the menu")
        self.keyboard.tap(Key.P)
        windows.wait(lambda: windows.menu() is None, "the menu to close")

    def paste_from_menu_in_haste(self) -> None:
        """By keys alone: a window manager may hold a click back, and let keys overtake it."""
        self.keyboard.tap(Key.MENU)
        self.keyboard.tap(Key.P)
