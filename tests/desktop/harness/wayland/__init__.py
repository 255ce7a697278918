# SPDX-License-Identifier: MIT
"""The tests' own client of Wayland: the user's hands, and other programs that copy and look."""
