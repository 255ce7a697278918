// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>

#include <QStringList>

namespace quorvane {

/// What is printed on the modifier keys of a shortcut: Ctrl, Alt, Shift, Super, in this order.
[[nodiscard]] QStringList modifierLabels(std::uint32_t modifiers);

/// What is printed on the keys of a shortcut, the modifiers first: "D" of a key that types a letter
/// in the layout, "F5", "←", "Space" of one that types none.
[[nodiscard]] QStringList capLabels(const HotKeyCombo& combo, const KeyboardLayout& layout);

/// A shortcut in one word, as texts name one: "Ctrl+Shift+Left Arrow".
[[nodiscard]] QString shortcutText(const HotKeyCombo& combo, const KeyboardLayout& layout);

/// Whether a key types a letter, a digit or a sign that one can see, in the layout.
[[nodiscard]] bool typesVisibleCharacter(std::uint32_t keyCode, const KeyboardLayout& layout);

/// What a screen reader says for the modifiers of a shortcut: Control, Alt, Shift, Super.
[[nodiscard]] QStringList spokenModifiers(std::uint32_t modifiers);

/// What a key is called: "D" of one that types a letter in the layout, "F5", "Left Arrow", "Space"
/// of one that types none. A key that has no name is "Key" with its code.
[[nodiscard]] QString spokenKey(std::uint32_t keyCode, const KeyboardLayout& layout);

/// One name for each of capLabels().
[[nodiscard]] QStringList spokenKeys(const HotKeyCombo& combo, const KeyboardLayout& layout);

} // namespace quorvane
