// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// A box to tick, with its label; both take the press.
class CheckBox final : public PressableControl {
    Q_OBJECT

public:
    explicit CheckBox(const QString& label, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] FocusOutline focusOutline() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::CheckBox;
    }

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;
    [[nodiscard]] double disabledOpacity() const override;

private:
    [[nodiscard]] int boxSize() const;
    [[nodiscard]] QRectF box() const;
    void paintBox(QPainter& painter, const Theme& theme) const;
    void paintEmptyBox(QPainter& painter, const Theme& theme) const;
};

} // namespace quorvane
