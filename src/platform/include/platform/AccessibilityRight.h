// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// The user's permission to read the global shortcut and to post keys into other applications.
class AccessibilityRight {
public:
    virtual ~AccessibilityRight() = default;

    /// Never asks the user.
    [[nodiscard]] virtual bool isTrusted() const = 0;

    /// Whether the desktop has a question by which the user can give the right.
    [[nodiscard]] virtual bool canPrompt() const = 0;

    /// Lets the desktop ask the user; the answer shows in a later isTrusted(). Does nothing where
    /// the desktop has no such question.
    virtual void prompt() = 0;
};

} // namespace quorvane
