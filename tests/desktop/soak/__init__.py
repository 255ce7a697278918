# SPDX-License-Identifier: MIT
"""Insertions by the hundred: every program, layout, clipboard and window manager with the others."""

import os

# Eleven programs and whatever else the machine does: much more than a test of one takes.
os.environ.setdefault("QUORVANE_TEST_PATIENCE", "30")
