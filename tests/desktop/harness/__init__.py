# SPDX-License-Identifier: MIT
"""A private desktop for each test process, driven and inspected as a user would."""
