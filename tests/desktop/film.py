# SPDX-License-Identifier: MIT
"""Films a run of Quorvane on a private virtual desktop, into a file: docs/quorvane.png."""

import sys
from pathlib import Path

from harness import screenshot
from harness.animation import Animation
from harness.keys import INSERT, SHORTCUT, Key, Keyboard
from harness.mouse import Mouse
from harness.quorvane import Quorvane
from harness.session import Session
from harness.targets import EDITORS, Editor
from harness.waiting import wait_until
from Xlib import XK
from Xlib.display import Display

_SCENE = (190, 30, 900, 740)
_GREETING = "Hi both,\n\nlet us move our call to "


class Film:
    """The session, and what is to be seen of it."""

    def __init__(self, session: Session) -> None:
        self._session = session
        self._display = Display(session.display)
        self._animation = Animation()
        self.keyboard = Keyboard(session.display)

    def show(self, seconds: float) -> None:
        """Adds what is on the screen once it has come to rest."""
        root = self._display.screen().root.id
        picture = screenshot.at_rest(self._session, root).cropped(*_SCENE)
        self._animation.add(picture, round(1000 * seconds))

    def write(self, text: str, letters: int = 3) -> None:
        """Types a text, and shows it so many letters at a time."""
        for start in range(0, len(text), letters):
            for letter in text[start : start + letters]:
                self._type(letter)
            self.show(0.18)

    def _type(self, letter: str) -> None:
        names = {" ": "space", ",": "comma", ":": "colon", "\n": "Return"}
        keysym = XK.string_to_keysym(names.get(letter, letter))
        keycode, level = next(iter(self._display.keysym_to_keycodes(keysym)))
        shift = [Key.SHIFT] if level % 2 else []
        self.keyboard.tap(*shift, keycode)

    def save(self, file: Path) -> None:
        """Ends the film."""
        self._animation.write(file)
        print(f"{file}: {file.stat().st_size // 1024} KiB")


def main(file: Path) -> None:
    """Two people get an appointment, in the time zone of each."""
    with Session("openbox") as session:
        session.start(["picom", "--backend", "xrender", "--config", "/dev/null"])
        film = Film(session)
        mouse = Mouse(session.display)
        editor = Editor(session, EDITORS["mousepad"])
        left, top, width, height = _SCENE
        session.windows.move(editor.window, left + 20, top + 20)
        session.windows.resize(editor.window, width - 44, height - 64)

        quorvane = Quorvane(session)
        quorvane.hide()
        editor.wait_active()
        film.write(_GREETING, 4)

        film.keyboard.tap(*SHORTCUT)
        quorvane.wait_active()
        tree = quorvane.tree()
        film.show(1.4)
        mouse.click(tree.find_described("push button", "Start date"))
        tree.find_role("push button", "Next month")
        film.show(0.7)
        film.write("tomorrow 14:05", 2)
        film.show(0.9)
        film.keyboard.tap(Key.RETURN)
        wait_until(lambda: "2:05" in quorvane.preview(), "the typed date")
        film.show(1.0)
        mouse.click(tree.find_role("push button", "Add time zone"))
        tree.find_role("text", "Search")
        film.show(0.6)
        film.write("tokyo", 1)
        film.keyboard.tap(Key.RETURN)
        film.show(0.8)
        film.keyboard.tap(Key.ESCAPE)
        wait_until(lambda: not tree.shows("text", "Search"), "the end of the search")
        film.show(1.8)

        text = quorvane.preview()
        film.keyboard.tap(*INSERT)
        editor.wait_text(_GREETING + text)
        editor.wait_active()
        film.show(3.5)
        quorvane.quit()
        film.save(file)


if __name__ == "__main__":
    main(Path(sys.argv[1]))
