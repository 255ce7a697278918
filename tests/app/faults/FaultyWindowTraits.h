// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/WindowTraits.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A window manager that does nothing of what it is asked for.
class FaultyWindowTraits final : public WindowTraits {
public:
    FaultyWindowTraits(std::unique_ptr<WindowTraits> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    void setActivationPolicy(ActivationPolicy policy) override {
        if (!m_plan.strikes("WindowTraits::setActivationPolicy"))
            m_real->setActivationPolicy(policy);
    }

    void preparePanel(QWindow& window) override {
        if (!m_plan.strikes("WindowTraits::preparePanel"))
            m_real->preparePanel(window);
    }

    void presentPanel(QWindow& window) override {
        if (!m_plan.strikes("WindowTraits::presentPanel"))
            m_real->presentPanel(window);
    }

    void prepareDialog(QWindow& window) override {
        if (!m_plan.strikes("WindowTraits::prepareDialog"))
            m_real->prepareDialog(window);
    }

    void orderFront(QWindow& window) override {
        if (!m_plan.strikes("WindowTraits::orderFront"))
            m_real->orderFront(window);
    }

    void activate(QWindow& window) override {
        if (!m_plan.strikes("WindowTraits::activate"))
            m_real->activate(window);
    }

    [[nodiscard]] bool placesWindows() const override {
        return m_plan.strikes("WindowTraits::placesWindows") ? false : m_real->placesWindows();
    }

    [[nodiscard]] bool isComposited() const override {
        return m_plan.strikes("WindowTraits::isComposited") ? false : m_real->isComposited();
    }

    void onCompositingChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("WindowTraits::onCompositingChanged"))
            m_real->onCompositingChanged(std::move(handler));
    }

    void setShadow(QWindow& window, const QMargins& margins) override {
        if (!m_plan.strikes("WindowTraits::setShadow"))
            m_real->setShadow(window, margins);
    }

    [[nodiscard]] std::optional<HeldInput> heldInput() const override {
        return m_plan.strikes("WindowTraits::heldInput") ? std::nullopt : m_real->heldInput();
    }

private:
    std::unique_ptr<WindowTraits> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
