// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// One item of a menu. The row under the pointer has the focus: its fill, not a ring, shows where
/// one is.
class MenuRow : public PressableControl {
    Q_OBJECT

public:
    static constexpr int rowHeight = 30;

    MenuRow(const QString& title, QWidget* parent);

    [[nodiscard]] FocusOutline focusOutline() const override { return {}; }

protected:
    static constexpr int horizontalPadding = 12;

    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) final;
    void enterEvent(QEnterEvent* event) override;

    void nextCheckState() override {}

    /// What stands on the row's fill.
    virtual void paintContent(QPainter& painter, const Theme& theme) = 0;

    [[nodiscard]] QFont titleFont() const;
    /// In points, rounded up.
    [[nodiscard]] int titleWidth() const;
    void paintTitle(QPainter& painter, const Theme& theme, const QRect& place) const;

    /// `place`, given for a row that reads from left to right, in this row's direction.
    [[nodiscard]] QRect placed(const QRect& place) const;
};

} // namespace quorvane
