// SPDX-License-Identifier: MIT
#pragma once

#include "FaultyStatusItem.h"

#include <platform/StatusBar.h>

namespace quorvane {

/// A desktop without a bar; an icon that one shows may fail later.
class FaultyStatusBar final : public StatusBar {
public:
    FaultyStatusBar(std::unique_ptr<StatusBar> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(const StatusMenu& menu) override {
        if (m_plan.strikes("StatusBar::makeStatusItem"))
            return nullptr;
        auto item = m_real->makeStatusItem(menu);
        return item ? std::make_unique<FaultyStatusItem>(std::move(item), m_plan) : nullptr;
    }

private:
    std::unique_ptr<StatusBar> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
