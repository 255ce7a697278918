# SPDX-License-Identifier: MIT
"""The look at a package's program, by programs that lack one thing each."""

import tempfile
import unittest
from pathlib import Path

from tree import TREE, run

_LOOK = TREE / "tests" / "packages" / "hardened.sh"

_SOURCE = """
#include <cstdio>
int main() {
    char line[64];
    return std::fgets(line, sizeof line, stdin) && std::puts(line);
}
"""

# As dpkg-buildflags has them with all of hardening.
_HARDENED = {
    "place": "-fPIE -pie",
    "relocations": "-Wl,-z,relro",
    "binding": "-Wl,-z,now",
    "stack": "-Wl,-z,noexecstack",
    "guards": "-fstack-protector-strong",
}

# What takes the place of one of them, and what is said about it then.
_LACKING = {
    "place": ("-fno-pie -no-pie", "a place that changes"),
    "relocations": ("-Wl,-z,norelro", "read-only relocations"),
    "binding": ("-Wl,-z,lazy", "binding at the start"),
    "stack": ("-Wl,-z,execstack", "a stack that is no code"),
    "guards": ("-fno-stack-protector", "guarded stacks"),
}


class Hardened(unittest.TestCase):
    """Each of the flags is missed, and nothing else."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory(prefix="qv-hardened-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        (self.folder / "program.cpp").write_text(_SOURCE, encoding="utf-8")

    def program(self, flags: dict[str, str]) -> Path:
        program = self.folder / "program"
        words = " ".join(flags.values()).split()
        built = run(["c++", self.folder / "program.cpp", "-O2", *words, "-o", program])
        self.assertEqual(0, built.returncode, built.stdout)
        return program

    def test_a_hardened_program_passes_in_silence(self) -> None:
        looked = run([_LOOK, self.program(_HARDENED)])
        self.assertEqual((0, ""), (looked.returncode, looked.stdout))

    def test_what_a_program_lacks_is_told(self) -> None:
        for name, (flag, told) in _LACKING.items():
            with self.subTest(name):
                looked = run([_LOOK, self.program(_HARDENED | {name: flag})])
                (line,) = looked.stdout.splitlines()
                self.assertIn(f"lacks {told}", line)
                self.assertEqual(1, looked.returncode)


if __name__ == "__main__":
    unittest.main()
