# SPDX-License-Identifier: MIT
"""The unit for systemd that the documentation has."""

import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from tree import TREE

_WORST = 10  # of 100: what systemd-analyze calls "SAFE"


class Systemd(unittest.TestCase):
    """What a user copies out of docs/systemd.md."""

    def test_the_unit_is_a_tight_sandbox(self) -> None:
        page = (TREE / "docs" / "systemd.md").read_text(encoding="utf-8")
        found = re.search(r"```ini\n(.*?)```", page, re.DOTALL)
        assert found
        with tempfile.TemporaryDirectory(prefix="qv-systemd-") as folder:
            unit = Path(folder) / "quorvane.service"
            unit.write_text(found[1], encoding="utf-8")
            command = ["systemd-analyze", "security", "--offline=true", "--no-pager"]
            judged = subprocess.run(
                [*command, f"--threshold={_WORST}", str(unit)], capture_output=True, text=True
            )
        self.assertEqual(0, judged.returncode, judged.stdout + judged.stderr)
        self.assertNotIn("Unknown", judged.stderr)
        self.assertNotIn("ignoring", judged.stderr)
