// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/Appearance.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A desktop that does not tell how it looks.
class FaultyAppearance final : public Appearance {
public:
    FaultyAppearance(std::unique_ptr<Appearance> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] DesktopAppearance current() const override {
        return m_plan.strikes("Appearance::current") ? DesktopAppearance{} : m_real->current();
    }

    void read() override {
        if (!m_plan.strikes("Appearance::read"))
            m_real->read();
    }

    void onChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("Appearance::onChanged"))
            m_real->onChanged(std::move(handler));
    }

private:
    std::unique_ptr<Appearance> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
