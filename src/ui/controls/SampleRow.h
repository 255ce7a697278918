// SPDX-License-Identifier: MIT
#pragma once

#include "MenuRow.h"

#include <controls/SampleList.h>

namespace quorvane {

/// One row of a SampleList.
class SampleRow final : public MenuRow {
    Q_OBJECT

public:
    SampleRow(SampleItem item, SampleList::Form form, const QFont& codeFont, QWidget* parent);

    /// What all three need; where there is less, the sample is shortened.
    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::ListItem;
    }

protected:
    void paintContent(QPainter& painter, const Theme& theme) override;

private:
    void paintText(
        QPainter& painter,
        const QRect& place,
        const QString& text,
        Qt::Alignment alignment,
        const QColor& color) const;
    [[nodiscard]] int codeWidth() const;
    [[nodiscard]] int lineHeight() const;

    SampleItem m_item;
    SampleList::Form m_form;
    QFont m_codeFont;
};

} // namespace quorvane
