// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/StatusItem.h>

#include <memory>
#include <utility>

namespace quorvane {

/// An icon that the bar has forgotten.
class FaultyStatusItem final : public StatusItem {
public:
    FaultyStatusItem(std::unique_ptr<StatusItem> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] bool hasButton() const override {
        return m_plan.strikes("StatusItem::hasButton") ? false : m_real->hasButton();
    }

    void setImage(const QIcon& image, const QString& accessibilityDescription) override {
        if (!m_plan.strikes("StatusItem::setImage"))
            m_real->setImage(image, accessibilityDescription);
    }

    void setToolTip(const QString& text) override {
        if (!m_plan.strikes("StatusItem::setToolTip"))
            m_real->setToolTip(text);
    }

    [[nodiscard]] std::optional<QColor> textColor() const override {
        return m_plan.strikes("StatusItem::textColor") ? std::nullopt : m_real->textColor();
    }

    void onTextColorChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("StatusItem::onTextColorChanged"))
            m_real->onTextColorChanged(std::move(handler));
    }

    void onClicked(std::function<void(Click)> handler) override {
        if (!m_plan.strikes("StatusItem::onClicked"))
            m_real->onClicked(std::move(handler));
    }

    [[nodiscard]] bool isVisible() const override {
        return m_plan.strikes("StatusItem::isVisible") ? false : m_real->isVisible();
    }

    void setVisible(bool visible) override {
        if (!m_plan.strikes("StatusItem::setVisible"))
            m_real->setVisible(visible);
    }

    void setMenu(const StatusMenu& menu) override {
        if (!m_plan.strikes("StatusItem::setMenu"))
            m_real->setMenu(menu);
    }

    void performClick() override {
        if (!m_plan.strikes("StatusItem::performClick"))
            m_real->performClick();
    }

    [[nodiscard]] std::optional<QRect> frame() const override {
        return m_plan.strikes("StatusItem::frame") ? std::nullopt : m_real->frame();
    }

private:
    std::unique_ptr<StatusItem> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
