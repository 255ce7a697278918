# SPDX-License-Identifier: MIT
"""KWin's own session, without a screen: what it tells of its windows, and the user's keyboard."""
