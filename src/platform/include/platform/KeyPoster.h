// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyChord.h>

namespace quorvane {

/// What became of a posted chord.
enum class PostOutcome {
    Posted,
    NoSuchKey,   ///< the keyboard has no key that would do
    Unavailable, ///< this desktop lets us post no keys
};

/// Types keys into whatever application is in front.
class KeyPoster {
public:
    virtual ~KeyPoster() = default;

    /// Presses and releases the chord with exactly its modifiers, whatever the user still holds.
    /// Command means the front window's own accelerator: for V, the keys by which it pastes.
    virtual PostOutcome post(const KeyChord& chord) = 0;
};

} // namespace quorvane
