# SPDX-License-Identifier: MIT
"""The pauses of an insertion in seconds, as in src/delivery/include/delivery/InsertionDelays.h."""

BEFORE_ACTIVATION = 0.08
BEFORE_PASTE = 0.12
BEFORE_RESTORE = 0.6

# From the request to the paste keys, when the clipboard's owner answers at once.
UNTIL_PASTE = BEFORE_ACTIVATION + BEFORE_PASTE
