# SPDX-License-Identifier: MIT
"""Where the tree and what is built of it lie."""

import os
from pathlib import Path

TREE = Path(__file__).resolve().parents[3]
"""The checkout."""

PROGRAM = Path(os.environ.get("QUORVANE_PROGRAM", TREE / "build" / "quorvane"))
"""The program under test; QUORVANE_PROGRAM names another one than the tree's build."""

HELD_DISK = Path(os.environ.get("QUORVANE_HELD_DISK", TREE / "build" / "tests" / "held-disk.so"))
"""What is preloaded into a program whose disk a test holds."""

MOVED_CLOCK = Path(
    os.environ.get("QUORVANE_MOVED_CLOCK_LIBRARY", TREE / "build" / "tests" / "moved-clock.so")
)
"""What is preloaded into a program whose clock a test moves."""

CONTACTS = Path(os.environ.get("QUORVANE_CONTACTS_LIBRARY", TREE / "build" / "tests" / "contacts.so"))
"""What is preloaded into a program to see whom it connects to."""

TEXT_FIELD = Path(
    os.environ.get("QUORVANE_TEXT_FIELD", TREE / "build" / "tests" / "quorvane-text-field")
)
"""A program of the tests' own to type into."""

FONTS = TREE / "tests" / "support" / "fonts.conf"
"""The fonts that tests see, whatever else is installed."""
