// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// One segment of a segmented control: a radio button by its role. The focus ring goes around the
/// whole control.
class SegmentButton final : public PressableControl {
    Q_OBJECT

public:
    SegmentButton(const QString& title, QWidget* control);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] FocusOutline focusOutline() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::RadioButton;
    }

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

    /// The control says which segment is checked.
    void nextCheckState() override {}
};

} // namespace quorvane
