// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/Workspace.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A desktop that does not tell what is in front, and brings nothing there.
class FaultyWorkspace final : public Workspace {
public:
    FaultyWorkspace(std::unique_ptr<Workspace> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] FrontmostApplication frontmostApplication() const override {
        return m_plan.strikes("Workspace::frontmostApplication") ? FrontmostApplication{}
                                                                 : m_real->frontmostApplication();
    }

    [[nodiscard]] bool isShown(const RunningApplication& application) const override {
        return m_plan.strikes("Workspace::isShown") ? false : m_real->isShown(application);
    }

    [[nodiscard]] bool receivesKeys(const RunningApplication& application) const override {
        return m_plan.strikes("Workspace::receivesKeys") ? false
                                                         : m_real->receivesKeys(application);
    }

    [[nodiscard]] QScreen* focusedScreen() const override {
        return m_plan.strikes("Workspace::focusedScreen") ? nullptr : m_real->focusedScreen();
    }

    [[nodiscard]] bool activate(const RunningApplication& application) override {
        return m_plan.strikes("Workspace::activate") ? false : m_real->activate(application);
    }

    void onFrontmostChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("Workspace::onFrontmostChanged"))
            m_real->onFrontmostChanged(std::move(handler));
    }

    void onActiveSpaceChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("Workspace::onActiveSpaceChanged"))
            m_real->onActiveSpaceChanged(std::move(handler));
    }

private:
    std::unique_ptr<Workspace> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
