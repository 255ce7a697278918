# SPDX-License-Identifier: MIT
"""A private desktop for each test process, and the hands and eyes of a user on it."""
