// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace quorvane {

/// Paints a row of the favourites: star, city, and below it offset and abbreviation.
class FavoriteRowDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        const override;
    [[nodiscard]] QSize
    sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace quorvane
