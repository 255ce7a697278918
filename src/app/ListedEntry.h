// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>
#include <platform/DesktopShortcut.h>

namespace quorvane {

/// Gives our entry in the desktop's list the shortcut that the user has just recorded. Does nothing
/// where there is no entry, or another command has that shortcut.
void rebind(DesktopShortcut& list, const HotKeyCombo& combo);

} // namespace quorvane
