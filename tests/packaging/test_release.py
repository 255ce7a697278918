# SPDX-License-Identifier: MIT
"""The archive of the sources."""

import hashlib
import re
import tarfile
import tempfile
import unittest
from pathlib import Path

from tree import CMAKE, TREE, run

# Whoever the tree belongs to.
_CLONE = ["git", "-c", "safe.directory=*", "clone", "--quiet"]


class Release(unittest.TestCase):
    """A copy of the tree's last commit makes a release."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory(prefix="qv-release-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def archive(self, copy: str, **environment: str) -> Path:
        """The archive that a copy of its own makes."""
        tree = self.folder / copy
        cloned = run([*_CLONE, TREE, tree])
        self.assertEqual(0, cloned.returncode, cloned.stdout)
        made = run([tree / "dev", "release", "--archive"], **environment)
        self.assertEqual(0, made.returncode, made.stdout)
        (found,) = (tree / "build" / "dist").glob("*.tar.xz")
        return found

    def test_two_copies_make_the_same_archive(self) -> None:
        first = self.archive("one")
        second = self.archive("another place", TZ="Asia/Tokyo", LC_ALL="C")
        sums = [hashlib.sha256(file.read_bytes()).hexdigest() for file in (first, second)]
        self.assertEqual(sums[0], sums[1])
        with tarfile.open(first) as archive:
            names = archive.getnames()
        folder = first.name.removesuffix(".tar.xz")
        self.assertTrue(all(name.split("/")[0] == folder for name in names))
        for name in ("dev", "CMakeLists.txt", "packaging/debian/rules", "LICENSE"):
            self.assertIn(f"{folder}/{name}", names)

    def test_the_day_of_the_build_is_what_packagers_say_or_that_of_the_release(self) -> None:
        script = self.folder / "day.cmake"
        module = TREE / "cmake" / "BuildDate.cmake"
        script.write_text(
            f'include("{module}")\nquorvane_build_date(day)\nmessage("${{day}}")\n',
            encoding="utf-8",
        )
        changes = (TREE / "CHANGELOG.md").read_text(encoding="utf-8")
        (released, *_) = re.findall(r"^## \[[\d.]+\] - ([\d-]+)$", changes, re.MULTILINE)
        command: list[str | Path] = ["env", "-u", "SOURCE_DATE_EPOCH", CMAKE, "-P", script]
        self.assertEqual(released, run(command, TZ="Asia/Tokyo").stdout.strip())
        command[2:3] = ["SOURCE_DATE_EPOCH=1710000000"]
        del command[1]
        self.assertEqual("2024-03-09", run(command, TZ="Asia/Tokyo").stdout.strip())

    def test_what_is_not_committed_is_no_release(self) -> None:
        tree = self.folder / "changed"
        run([*_CLONE, TREE, tree])
        (tree / "README.md").write_text("changed", encoding="utf-8")
        made = run([tree / "dev", "release", "--archive"])
        self.assertEqual(1, made.returncode)
        self.assertIn("not committed", made.stdout)


if __name__ == "__main__":
    unittest.main()
