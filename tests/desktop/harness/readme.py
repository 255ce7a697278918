# SPDX-License-Identifier: MIT
"""The commands that the README offers."""

import re

from .paths import TREE

_BLOCK = re.compile(r"^```\n(.*?)^```", re.MULTILINE | re.DOTALL)
_CONTINUED = re.compile(r"\s*\\\n\s*")
_COMMENT = re.compile(r"\s+#.*")


def commands() -> list[str]:
    """Each as it would be typed, on one line and without its comment."""
    blocks = _BLOCK.findall((TREE / "README.md").read_text())
    lines = (line for block in blocks for line in _CONTINUED.sub(" ", block).splitlines())
    return [_COMMENT.sub("", line) for line in lines if line.strip()]
