// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>
#include <platform/KeyboardLayout.h>

#include <optional>

namespace quorvane {

/// A shortcut as KDE's list has it: what the key types, not its position, as Qt numbers keys, plus
/// Qt's modifiers. KWin leaves Shift out where it makes another character of the key. None for a
/// key that types nothing and has no number of Qt's.
[[nodiscard]] std::optional<int> kdeKeyOf(const KeyChord& chord, const KeyboardLayout& layout);

/// The inverse; none for what is no shortcut here: a key that this layout does not have, or one
/// without modifiers.
[[nodiscard]] std::optional<KeyChord> chordOfKdeKey(int key, const KeyboardLayout& layout);

} // namespace quorvane
