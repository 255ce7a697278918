# SPDX-License-Identifier: MIT
"""How often the workflow is walked in a row."""

import os

ROUNDS = int(os.environ.get("QUORVANE_TEST_ROUNDS", "5"))
"""Under Wayland's compositors; ./dev check asks for more."""
