// SPDX-License-Identifier: MIT
#pragma once

#include <model/DateTimeModel.h>
#include <platform/AccessibilityRight.h>

#include <functional>

namespace quorvane {

/// When the desktop may ask the user about typing. It does so when the user chooses to allow it;
/// for a user who has done that once, also at the first insertion of each later run. Nobody is
/// asked at a start, after a refusal, or after the right was taken back, but by the user's own
/// choice.
class TypingConsent final {
public:
    /// Both must outlive the consent. It is the only one to follow the right.
    struct Dependencies {
        AccessibilityRight& right;
        DateTimeModel& model;
    };

    using Answered = std::function<void(bool isGiven)>;

    /// `onChanged` runs whenever the right has changed.
    TypingConsent(Dependencies dependencies, std::function<void()> onChanged);
    ~TypingConsent();

    TypingConsent(const TypingConsent&) = delete;
    TypingConsent& operator=(const TypingConsent&) = delete;

    /// The user has chosen to allow typing.
    void allow();

    /// Whether the desktop's question waits for the user.
    [[nodiscard]] bool isAsked() const;

    /// Whether an insertion is to ask before it types.
    [[nodiscard]] bool isDue() const;

    /// Asks, and runs `answered` once, when the user has answered or the question is gone; maybe
    /// before this returns, and never after forget().
    void ask(Answered answered);

    /// Nobody waits for the answer any more.
    void forget() { m_answered = {}; }

private:
    void rightDidChange();
    void settle();

    Dependencies m_dependencies;
    std::function<void()> m_changed;
    Answered m_answered; ///< while somebody waits for the answer
};

} // namespace quorvane
