// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace quorvane {

/// Paints the rows and heads of a list of zones.
class ZoneRowDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        const override;
    [[nodiscard]] QSize
    sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace quorvane
