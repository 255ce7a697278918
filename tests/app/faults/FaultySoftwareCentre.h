// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/SoftwareCentre.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A desktop without one.
class FaultySoftwareCentre final : public SoftwareCentre {
public:
    FaultySoftwareCentre(std::unique_ptr<SoftwareCentre> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] bool showPage(const QString& applicationId) override {
        return m_plan.strikes("SoftwareCentre::showPage") ? false : m_real->showPage(applicationId);
    }

private:
    std::unique_ptr<SoftwareCentre> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
