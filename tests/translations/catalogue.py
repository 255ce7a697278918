# SPDX-License-Identifier: MIT
"""Reads the catalogues of the interface's texts."""

import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass
from pathlib import Path

TREE = Path(__file__).resolve().parents[2]
FOLDER = TREE / "resources" / "translations"
PREFIX = "quorvane_"


@dataclass(frozen=True)
class Message:
    """A text of the sources and what a catalogue makes of it."""

    context: str
    source: str
    comment: str
    is_plural: bool
    state: str
    forms: tuple[str, ...]

    @property
    def key(self) -> tuple[str, str, str, bool]:
        """What tells it from the others of a catalogue."""
        return (self.context, self.source, self.comment, self.is_plural)


def languages() -> list[str]:
    """Those that there are catalogues for."""
    return sorted(file.stem.removeprefix(PREFIX) for file in FOLDER.glob(f"{PREFIX}*.ts"))


def file_of(language: str) -> Path:
    """The catalogue of a language."""
    return FOLDER / f"{PREFIX}{language}.ts"


def messages(file: Path) -> list[Message]:
    """All of a catalogue, in its order."""
    return [
        _message(context.findtext("name", ""), element)
        for context in ElementTree.parse(file).findall("context")
        for element in context.findall("message")
    ]


def _message(context: str, element: ElementTree.Element) -> Message:
    translation = element.find("translation")
    assert translation is not None
    is_plural = element.get("numerus") == "yes"
    forms = translation.findall("numerusform") if is_plural else [translation]
    return Message(
        context,
        element.findtext("source", ""),
        element.findtext("comment", ""),
        is_plural,
        translation.get("type", "finished"),
        tuple(form.text or "" for form in forms),
    )
