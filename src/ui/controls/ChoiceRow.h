// SPDX-License-Identifier: MIT
#pragma once

#include "MenuRow.h"

namespace quorvane {

/// One item of a list to choose from, with a check mark while it is the chosen one.
class ChoiceRow final : public MenuRow {
    Q_OBJECT

public:
    ChoiceRow(const QString& title, bool isChosen, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::ListItem;
    }

protected:
    void paintContent(QPainter& painter, const Theme& theme) override;
};

} // namespace quorvane
