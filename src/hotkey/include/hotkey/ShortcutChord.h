// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>
#include <platform/EventTap.h>

#include <optional>

namespace quorvane {

/// A shortcut as desktops know it; none if it has a modifier that no keyboard has.
[[nodiscard]] inline std::optional<KeyChord> chordOf(const HotKeyCombo& combo) {
    const auto flags = toModifierFlags(combo.modifiers);
    return flags ? std::optional(KeyChord{combo.keyCode, *flags}) : std::nullopt;
}

/// The inverse; modifiers that do not count are dropped.
[[nodiscard]] inline HotKeyCombo comboOf(const KeyChord& chord) {
    return {chord.keyCode, toCarbonModifiers(chord.flags)};
}

} // namespace quorvane
