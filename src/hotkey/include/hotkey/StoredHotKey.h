// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>

namespace quorvane {

/// The shortcut to begin with: the stored one. In place of numbers that no shortcut has (out of
/// range, or without a modifier) it is the default one, and the reason goes to standard error; the
/// store keeps them until another shortcut is recorded.
[[nodiscard]] HotKeyCombo storedHotKey(const DefaultsStore& store);

} // namespace quorvane
