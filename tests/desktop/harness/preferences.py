# SPDX-License-Identifier: MIT
"""The window of the preferences, used by its accessible names."""

from .quorvane import Quorvane

DOCK = "Show windows in taskbar"
"""The name of a switch that is off at first."""


def switch(quorvane: Quorvane, name: str) -> None:
    """Opens the preferences and presses one of their switches."""
    quorvane.action("preferences")
    quorvane.tree().find_role("check box", name).press()
