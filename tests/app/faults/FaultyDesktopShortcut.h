// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/DesktopShortcut.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A list of shortcuts that is neither read nor changed.
class FaultyDesktopShortcut final : public DesktopShortcut {
public:
    FaultyDesktopShortcut(std::unique_ptr<DesktopShortcut> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] QString desktopName() const override {
        return m_plan.strikes("DesktopShortcut::desktopName") ? QString() : m_real->desktopName();
    }

    [[nodiscard]] std::optional<KeyChord> bound() const override {
        return m_plan.strikes("DesktopShortcut::bound") ? std::nullopt : m_real->bound();
    }

    [[nodiscard]] QString holder(const KeyChord& chord) const override {
        return m_plan.strikes("DesktopShortcut::holder") ? QString() : m_real->holder(chord);
    }

    void refresh() override {
        if (!m_plan.strikes("DesktopShortcut::refresh"))
            m_real->refresh();
    }

    void bind(const KeyChord& chord) override {
        if (!m_plan.strikes("DesktopShortcut::bind"))
            m_real->bind(chord);
    }

    void unbind() override {
        if (!m_plan.strikes("DesktopShortcut::unbind"))
            m_real->unbind();
    }

    void onChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("DesktopShortcut::onChanged"))
            m_real->onChanged(std::move(handler));
    }

    void onRebound(std::function<void(const KeyChord&)> handler) override {
        if (!m_plan.strikes("DesktopShortcut::onRebound"))
            m_real->onRebound(std::move(handler));
    }

private:
    std::unique_ptr<DesktopShortcut> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
