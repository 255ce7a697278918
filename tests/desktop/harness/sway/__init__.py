# SPDX-License-Identifier: MIT
"""A session of sway without a screen, and of weston, which offers programs next to nothing."""
