// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A desktop whose question the test answers.
class FakeAccessibilityRight final : public AccessibilityRight {
public:
    explicit FakeAccessibilityRight(CallLog& log) : m_log(log) {}

    [[nodiscard]] bool mayReadShortcut() const override {
        m_log.add("mayReadShortcut");
        return m_mayReadShortcut;
    }

    [[nodiscard]] TypingRight typing() const override {
        m_log.add("isTrusted");
        return m_typing;
    }

    [[nodiscard]] bool canPrompt() const override { return m_canPrompt; }

    void prompt() override {
        m_log.add("prompt");
        if (m_canPrompt && m_typing != TypingRight::Granted)
            setTyping(TypingRight::Asking);
    }

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

    /// The desktop has a question for the user.
    void setCanPrompt() { m_canPrompt = true; }

    /// What the user has answered, or the desktop has done.
    void setTyping(TypingRight typing) {
        if (std::exchange(m_typing, typing) != typing)
            m_changed();
    }

    /// Both rights at once, as on desktops that ask nobody.
    void setTrusted(bool trusted) {
        m_mayReadShortcut = trusted;
        setTyping(trusted ? TypingRight::Granted : TypingRight::Unavailable);
    }

private:
    CallLog& m_log;
    TypingRight m_typing = TypingRight::Granted;
    bool m_mayReadShortcut = true;
    bool m_canPrompt = false;
    std::function<void()> m_changed = [] {
    };
};

} // namespace quorvane
