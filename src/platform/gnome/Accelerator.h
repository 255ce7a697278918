// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>
#include <platform/KeyboardLayout.h>

#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace quorvane {

/// A shortcut as GTK and Mutter write it: "<Control><Shift>d". The key is named by what it types,
/// wherever it lies, or by its place, "0x31".
struct Accelerator {
    ModifierFlags flags;
    std::uint32_t keysym = 0;   ///< of xkbcommon, a letter's small one; 0 where the place counts
    std::uint32_t scanCode = 0; ///< 0 where the name counts

    friend bool operator==(const Accelerator&, const Accelerator&) = default;

    /// None for no shortcut ("", "disabled"), for modifiers other than our four, and for nonsense.
    [[nodiscard]] static std::optional<Accelerator> parse(QStringView text);

    [[nodiscard]] QString text() const;

    /// By the name that holds in any layout that has the key: its own letter where that is a Latin
    /// one, else the letter that Latin keyboards have there; by its place where it has neither.
    /// None for a key that no keyboard has.
    [[nodiscard]] static std::optional<Accelerator>
    of(const KeyChord& chord, const KeyboardLayout& layout);

    /// Which key that is in the layout in use; none for one that we do not know.
    [[nodiscard]] std::optional<KeyChord> chord(const KeyboardLayout& layout) const;
};

} // namespace quorvane
