// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/TimeChanges.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A system that tells nothing of its clock.
class FaultyTimeChanges final : public TimeChanges {
public:
    FaultyTimeChanges(std::unique_ptr<TimeChanges> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    void onChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("TimeChanges::onChanged"))
            m_real->onChanged(std::move(handler));
    }

private:
    std::unique_ptr<TimeChanges> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
