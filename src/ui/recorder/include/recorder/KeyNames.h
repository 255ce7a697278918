// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>

#include <QStringList>

namespace quorvane {

/// What a screen reader says for the modifiers of a shortcut, as Control, Alt, Shift, Super: the
/// names that are printed on the keys here, where the caps show the glyphs of another keyboard.
[[nodiscard]] QStringList spokenModifiers(std::uint32_t modifiers);

/// What a key is called: "D" of one that types a letter in the layout, "F5", "Left Arrow", "Space"
/// of one that types none. A key that has no name is "Key" with its code.
[[nodiscard]] QString spokenKey(std::uint32_t keyCode, const KeyboardLayout& layout);

/// One name for each of HotKeyCombo::displayKeys().
[[nodiscard]] QStringList spokenKeys(const HotKeyCombo& combo, const KeyboardLayout& layout);

} // namespace quorvane
