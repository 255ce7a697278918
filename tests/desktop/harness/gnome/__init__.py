# SPDX-License-Identifier: MIT
"""GNOME's own session, without a screen: what the tests see of it, and the user's hands in it."""
