// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/Autostart.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A login that cannot be changed, nor asked.
class FaultyAutostart final : public Autostart {
public:
    FaultyAutostart(std::unique_ptr<Autostart> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] bool isAvailable() const override {
        return m_plan.strikes("Autostart::isAvailable") ? false : m_real->isAvailable();
    }

    [[nodiscard]] bool isOn() const override {
        return m_plan.strikes("Autostart::isOn") ? false : m_real->isOn();
    }

    void setOn(bool on) override {
        if (!m_plan.strikes("Autostart::setOn"))
            m_real->setOn(on);
    }

    [[nodiscard]] Request request() const override {
        return m_plan.strikes("Autostart::request") ? Request::Refused : m_real->request();
    }

    void onChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("Autostart::onChanged"))
            m_real->onChanged(std::move(handler));
    }

private:
    std::unique_ptr<Autostart> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
