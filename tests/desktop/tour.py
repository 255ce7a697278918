# SPDX-License-Identifier: MIT
"""Runs Quorvane's whole workflow once on a private virtual desktop."""

from harness import screenshot, tray
from harness.clipboard import Clipboard
from harness.keys import INSERT, SHORTCUT, Keyboard
from harness.offer import plain_text
from harness.paths import TREE
from harness.quorvane import Quorvane
from harness.session import Session
from harness.targets import EDITORS, Editor

_COPIED = "something that the user copied earlier"


def main() -> None:
    """Prints each step and saves pictures of it."""
    pictures = TREE / "build" / "tour"
    pictures.mkdir(parents=True, exist_ok=True)
    with Session("openbox") as session:
        tray.start(session)
        keyboard = Keyboard(session.display)
        clipboard = Clipboard(session)
        editor = Editor(session, EDITORS["mousepad"])
        clipboard.own(plain_text(_COPIED))
        print(f'Before: the clipboard holds "{_COPIED}".')

        quorvane = Quorvane(session)
        quorvane.wait_active()
        keyboard.tap(*SHORTCUT)
        quorvane.wait_hidden()
        editor.wait_active()
        print("Quorvane runs; its panel is hidden; mousepad has the focus.")

        keyboard.tap(*SHORTCUT)
        panel = quorvane.wait_active()
        text = quorvane.preview()
        screenshot.take(session, panel, pictures / "panel.png")
        print(f'Control+Shift+Super+D: the panel shows "{text}".')

        keyboard.tap(*INSERT)
        editor.wait_text(text)
        print(f'Control+Return: in mousepad now stands "{editor.text()}".')

        clipboard.wait_for(plain_text(_COPIED))
        held = clipboard.data("UTF8_STRING") or b""
        print(f'Afterwards: the clipboard holds "{held.decode()}".')
        editor.wait_active()
        screenshot.take(session, editor.window, pictures / "editor.png")
        quorvane.quit()
    print(f"Pictures: {pictures / 'panel.png'}, {pictures / 'editor.png'}")


if __name__ == "__main__":
    main()
