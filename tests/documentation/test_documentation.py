# SPDX-License-Identifier: MIT
"""The pages for readers agree with the tree."""

import re
import subprocess
import unittest
from pathlib import Path

TREE = Path(__file__).resolve().parents[2]

_LINK = re.compile(r"\]\((?!https?:)([^)#\s]+)(?:#([^)\s]+))?\)")
_COMMAND = re.compile(r"\./dev +([a-z]+)")
_OFFERED = re.compile(r"^  ([a-z]+)", re.MULTILINE)
_LARGEST_PICTURE = 1_000_000


def pages() -> list[Path]:
    """All that is written for readers."""
    return sorted([*TREE.glob("*.md"), *(TREE / "docs").glob("*.md")])


class Pages(unittest.TestCase):
    """What a page leads to is there."""

    def test_every_link_leads_somewhere(self) -> None:
        for page in pages():
            for target, _ in _LINK.findall(page.read_text()):
                with self.subTest(page=page.name, target=target):
                    self.assertTrue((page.parent / target).exists())

    def test_every_page_is_reached_from_the_readme(self) -> None:
        reached: set[Path] = set()
        waiting = [TREE / "README.md"]
        while waiting:
            page = waiting.pop()
            if page in reached or page.suffix != ".md":
                continue
            reached.add(page)
            links = _LINK.findall(page.read_text())
            waiting += [(page.parent / target).resolve() for target, _ in links]
        self.assertEqual(set(), set(pages()) - reached - {TREE / "CHANGELOG.md"})

    def test_every_command_is_offered_by_dev(self) -> None:
        text = subprocess.run(
            [TREE / "dev", "help"], capture_output=True, text=True, check=True
        ).stdout
        offered = set(_OFFERED.findall(text))
        for page in pages():
            for command in _COMMAND.findall(page.read_text()):
                with self.subTest(page=page.name, command=command):
                    self.assertIn(command, offered)

    def test_pictures_are_small_enough_to_load_at_once(self) -> None:
        for picture in (TREE / "docs").glob("*.png"):
            with self.subTest(picture.name):
                self.assertLess(picture.stat().st_size, _LARGEST_PICTURE)


if __name__ == "__main__":
    unittest.main()
