# SPDX-License-Identifier: MIT
"""The archive of the sources."""

import hashlib
import tarfile
import tempfile
import unittest
from pathlib import Path

from tree import TREE, run

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

    def test_what_is_not_committed_is_no_release(self) -> None:
        tree = self.folder / "changed"
        run([*_CLONE, TREE, tree])
        (tree / "README.md").write_text("changed", encoding="utf-8")
        made = run([tree / "dev", "release", "--archive"])
        self.assertEqual(1, made.returncode)
        self.assertIn("not committed", made.stdout)


if __name__ == "__main__":
    unittest.main()
