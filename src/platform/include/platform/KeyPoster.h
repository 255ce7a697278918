// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteTarget.h>

#include <functional>
#include <optional>

namespace quorvane {

/// What became of the keys that were to be posted.
enum class PostOutcome {
    Posted,
    NoSuchKey,   ///< the keyboard has no key that would do
    Unavailable, ///< this desktop does not let us post keys
};

using PostHandler = std::function<void(PostOutcome)>;

/// Types into the application in front.
class KeyPoster {
public:
    virtual ~KeyPoster() = default;

    /// Does what takes its time before the first paste, at a moment when nobody waits for it. Needs
    /// not be called.
    virtual void prepare() {}

    /// How the window in front pastes, with the keys that this keyboard has: the one place that
    /// decides about both the keys and where they take the text from. None if the keyboard has no
    /// key that would do, or this desktop does not let us post any.
    [[nodiscard]] virtual std::optional<PasteTarget> pasteTarget() const = 0;

    /// Presses and releases the keys of what pasteTarget() said. Modifier keys that the user still
    /// holds do not take part. `done` is called once, when the last key is sent or none can be: at
    /// most a second from now, maybe before this returns, and never after the poster is destroyed,
    /// which leaves no key down.
    virtual void paste(const PasteTarget& target, PostHandler done) = 0;
};

} // namespace quorvane
