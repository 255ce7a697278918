// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ModifierFlags.h>

#include <cstdint>

namespace quorvane {

/// A key by its position, with the modifiers held: exactly those, of the counted ones.
struct KeyChord {
    std::uint32_t keyCode = 0; ///< see KeyCodes.h
    ModifierFlags flags;

    friend constexpr bool operator==(const KeyChord&, const KeyChord&) = default;
};

} // namespace quorvane
