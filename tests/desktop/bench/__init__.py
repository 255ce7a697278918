# SPDX-License-Identifier: MIT
"""What a user waits for and what the program costs, measured from the outside."""
