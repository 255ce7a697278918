// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// One item of a list to choose from, with a check mark while it is the chosen one. The row under
/// the pointer has the focus: its fill, not a ring, shows where one is.
class MenuRow final : public PressableControl {
    Q_OBJECT

public:
    static constexpr int height = 30;

    MenuRow(const QString& title, bool isChosen, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] FocusOutline focusOutline() const override { return {}; }

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::ListItem;
    }

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;
    void enterEvent(QEnterEvent* event) override;

    void nextCheckState() override {}
};

} // namespace quorvane
