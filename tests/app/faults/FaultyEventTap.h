// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/EventTap.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A tap of which the desktop has lost sight.
class FaultyEventTap final : public EventTap {
public:
    FaultyEventTap(std::unique_ptr<EventTap> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    void watch(std::optional<KeyChord> chord) override {
        if (!m_plan.strikes("EventTap::watch"))
            m_real->watch(chord);
    }

    void enable() override {
        if (!m_plan.strikes("EventTap::enable"))
            m_real->enable();
    }

    void disable() override {
        if (!m_plan.strikes("EventTap::disable"))
            m_real->disable();
    }

    [[nodiscard]] TapDelivery delivery() const override {
        return m_plan.strikes("EventTap::delivery") ? TapDelivery::Unavailable : m_real->delivery();
    }

    [[nodiscard]] QString holder() const override {
        return m_plan.strikes("EventTap::holder") ? QString() : m_real->holder();
    }

    [[nodiscard]] bool tellsRelease() const override {
        return m_plan.strikes("EventTap::tellsRelease") ? false : m_real->tellsRelease();
    }

    [[nodiscard]] bool isKeyDown() override {
        return m_plan.strikes("EventTap::isKeyDown") ? false : m_real->isKeyDown();
    }

private:
    std::unique_ptr<EventTap> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
