// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>
#include <testing/CallLog.h>

namespace quorvane {

class FakeAccessibilityRight final : public AccessibilityRight {
public:
    explicit FakeAccessibilityRight(CallLog& log) : m_log(log) {}

    [[nodiscard]] bool isTrusted() const override {
        m_log.add("isTrusted");
        return m_trusted;
    }

    [[nodiscard]] bool canPrompt() const override { return m_canPrompt; }

    void prompt() override { m_log.add("prompt"); }

    /// The desktop has a question for the user.
    void setCanPrompt() { m_canPrompt = true; }

    void setTrusted(bool trusted) { m_trusted = trusted; }

private:
    CallLog& m_log;
    bool m_trusted = true;
    bool m_canPrompt = false;
};

} // namespace quorvane
