// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/AccessibilityRight.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A right that the desktop gives to nobody, and a question that never shows.
class FaultyAccessibilityRight final : public AccessibilityRight {
public:
    FaultyAccessibilityRight(std::unique_ptr<AccessibilityRight> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] bool mayReadShortcut() const override {
        return m_plan.strikes("AccessibilityRight::mayReadShortcut") ? false
                                                                     : m_real->mayReadShortcut();
    }

    [[nodiscard]] TypingRight typing() const override {
        return m_plan.strikes("AccessibilityRight::typing") ? TypingRight::Unavailable
                                                            : m_real->typing();
    }

    [[nodiscard]] bool canPrompt() const override {
        return m_plan.strikes("AccessibilityRight::canPrompt") ? false : m_real->canPrompt();
    }

    void prompt() override {
        if (!m_plan.strikes("AccessibilityRight::prompt"))
            m_real->prompt();
    }

    void onChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("AccessibilityRight::onChanged"))
            m_real->onChanged(std::move(handler));
    }

private:
    std::unique_ptr<AccessibilityRight> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
