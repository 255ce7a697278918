// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quorvane {

/// The keyboard layout in use.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    /// What the key types without modifiers, as UTF-16, at most 4 units; empty for a key that types
    /// nothing (dead keys, arrows, function keys). None if the layout cannot be asked.
    [[nodiscard]] virtual std::optional<std::u16string> characters(std::uint16_t keyCode) const = 0;

    /// The same with Shift; none where it is not told.
    [[nodiscard]] virtual std::optional<std::u16string>
    shiftedCharacters(std::uint16_t /*keyCode*/) const {
        return std::nullopt;
    }

    /// Called after the user switched or changed the layout; replaces an earlier handler.
    virtual void onChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
