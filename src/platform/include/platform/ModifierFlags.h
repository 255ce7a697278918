// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quorvane {

/// Live modifier keys, one bit each. The bit positions are the ones that all backends hand out,
/// whatever their own are.
struct ModifierFlags {
    std::uint64_t bits = 0;

    friend constexpr bool operator==(ModifierFlags, ModifierFlags) = default;

    friend constexpr ModifierFlags operator|(ModifierFlags a, ModifierFlags b) {
        return {a.bits | b.bits};
    }

    friend constexpr ModifierFlags operator&(ModifierFlags a, ModifierFlags b) {
        return {a.bits & b.bits};
    }
};

namespace modifier {

inline constexpr ModifierFlags none{};
inline constexpr ModifierFlags capsLock{1U << 16};
inline constexpr ModifierFlags shift{1U << 17};
inline constexpr ModifierFlags control{1U << 18};
inline constexpr ModifierFlags option{1U << 19};
inline constexpr ModifierFlags command{1U << 20};

/// The four modifiers that count in a shortcut; all others are ignored.
inline constexpr ModifierFlags counted = shift | control | option | command;

} // namespace modifier

} // namespace quorvane
