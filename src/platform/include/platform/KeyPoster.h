// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// What became of the keys that were to be posted.
enum class PostOutcome {
    Posted,
    NoSuchKey,   ///< the keyboard has no key that would do
    Unavailable, ///< this desktop does not let us post keys
};

/// Types into the application in front.
class KeyPoster {
public:
    virtual ~KeyPoster() = default;

    /// Presses and releases the keys by which the window in front pastes. Modifier keys that the
    /// user still holds do not take part.
    [[nodiscard]] virtual PostOutcome paste() = 0;
};

} // namespace quorvane
