// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

#include <QVariantAnimation>

namespace quorvane {

/// A switch without a label of its own: give it an accessible name.
class ToggleSwitch final : public PressableControl {
    Q_OBJECT

public:
    explicit ToggleSwitch(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] FocusOutline focusOutline() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::CheckBox;
    }

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

private:
    [[nodiscard]] QRectF track() const;
    void moveKnob();

    QVariantAnimation m_knob; ///< its place, 0 (off) to 1 (on)
};

} // namespace quorvane
