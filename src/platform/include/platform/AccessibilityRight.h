// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// Where the right to post keys into other applications stands.
enum class TypingRight {
    Granted,
    NotAsked,   ///< the desktop gives it to those who ask, which nobody has done in this run
    Asking,     ///< the desktop's question waits for the user
    Refused,    ///< the user has said no
    Stopped,    ///< it was given in this run, and taken back
    Unavailable ///< this desktop gives it to nobody
};

/// The user's permission to read the global shortcut and to post keys into other applications.
/// Nothing here but prompt() ever asks the user.
class AccessibilityRight {
public:
    virtual ~AccessibilityRight() = default;

    /// Whether presses of the global shortcut may be read; where the desktop asks for keys that are
    /// posted alone, always.
    [[nodiscard]] virtual bool mayReadShortcut() const = 0;

    [[nodiscard]] virtual TypingRight typing() const = 0;

    /// Whether keys may be posted.
    [[nodiscard]] bool isTrusted() const { return typing() == TypingRight::Granted; }

    /// Whether the desktop has a question by which the user can give the right.
    [[nodiscard]] virtual bool canPrompt() const = 0;

    /// Lets the desktop ask the user, for as long as the user takes; typing() says Asking until
    /// then. Does nothing where the right is given already, the question is open, or there is none.
    virtual void prompt() = 0;

    /// Called whenever typing() says something else than before; replaces an earlier handler.
    virtual void onChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
