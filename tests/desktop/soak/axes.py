# SPDX-License-Identifier: MIT
"""What a case is made of: each axis with its values, the ordinary one first."""

from dataclasses import dataclass

MORE_TERMINALS = (
    *("urxvt", "st", "konsole", "kitty", "alacritty", "terminator", "tilix", "mate-terminal"),
    *("lxterminal", "gnome-terminal", "sakura", "cool-retro-term"),
)
"""Targets that are left out unless they are named."""

AXES: dict[str, tuple[str, ...]] = {
    "wm": ("openbox", "xfwm4", "i3", "none"),
    "target": (
        "mousepad",
        "gnome-text-editor",
        "featherpad",
        "field",
        "dialog",
        "xterm",
        "xfce4-terminal",
        "qterminal",
        "writer",
        "chromium",
        "firefox",
        "emacs",
        *MORE_TERMINALS,
    ),
    # A layout with its variant in brackets, and the number of the group in use where it has two.
    "layout": (
        "us",
        "de",
        "fr",
        "us(dvorak)",
        "us(colemak)",
        "us,ru:1",
        "us,ru:2",
        "us,gr:1",
        "us,gr:2",
        "ru",
        "gr",
        "jp",
        "us+ctrl:swapcaps",
        "us+altwin:swap_alt_win",
    ),
    # When the layout is there: before the shortcut, between the shortcut and Insert, or on all but
    # the user's own keyboard, which was plugged in later and has the default one.
    "change": ("before", "between", "plugged"),
    # What the user holds down while the text is inserted, or has locked.
    "keys": (
        "nothing",
        "shift",
        "alt",
        "super",
        "ctrl",
        "altgr",
        "return",
        "caps-lock",
        "num-lock",
        "sticky-shift",
    ),
    "clipboard": (
        "text",
        "nothing",
        "files",
        "image",
        "large",
        "many-targets",
        "format-32",
        "hangs",
        "dies",
        "slow",
        "refuses",
        "own",
        "parcellite",
        "copyq",
    ),
    "window": ("normal", "full-screen", "minimised", "closed", "locked"),
    # The language of the dates, and with it the script.
    "locale": ("ja_JP", "ru_RU", "el_GR", "hi_IN"),
}

STRETCH_AXES = ("wm", "locale")
"""What a whole stretch of cases shares: to change it means another session."""


@dataclass(frozen=True)
class Case:
    """One value of each axis."""

    wm: str
    target: str
    layout: str
    change: str
    keys: str
    clipboard: str
    window: str
    locale: str

    def __str__(self) -> str:
        return " ".join(f"{axis}={getattr(self, axis)}" for axis in AXES)

    @classmethod
    def parse(cls, description: str) -> "Case":
        """The inverse of `str`; an axis that is left out has its ordinary value."""
        values = {axis: choices[0] for axis, choices in AXES.items()}
        for word in description.split():
            axis, _, value = word.partition("=")
            if value not in AXES.get(axis, ()):
                raise ValueError(f"no such thing as {word}")
            values[axis] = value
        case = cls(**values)
        if not is_possible(values):
            raise ValueError(f"does not go together: {case}")
        return case


def is_possible(values: dict[str, str]) -> bool:
    """Whether these values go together; axes that are missing go with everything."""
    wm, target, window = (values.get(axis, "") for axis in ("wm", "target", "window"))
    if window != "normal" and wm == "none":
        return False  # nobody is there to do it, or to tell of it
    if window == "minimised" and (wm == "i3" or target == "dialog"):
        return False  # these do not minimise
    if window == "full-screen" and target == "dialog":
        return False  # nor fill the screen
    if window in ("minimised", "closed", "locked") and not _is_ordinary(values):
        return False  # nothing arrives: the axes of what arrives say nothing
    return not (window == "closed" and target not in ("field", "xterm"))


def _is_ordinary(values: dict[str, str]) -> bool:
    return all(
        values.get(axis, AXES[axis][0]) == AXES[axis][0] for axis in ("keys", "change")
    ) and values.get("clipboard", "text") in ("text", "nothing", "image", "files")
