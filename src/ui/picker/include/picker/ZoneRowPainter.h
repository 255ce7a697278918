// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>

#include <QStyleOptionViewItem>

class QPainter;

namespace quorvane {

/// What the rows of all lists of zones have in common: which colours they are filled and written
/// with, and where things stand in the row's direction.
class ZoneRowPainter {
public:
    /// For one row, at once: it keeps references.
    ZoneRowPainter(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index);

    [[nodiscard]] QPainter& painter() const { return m_painter; }

    [[nodiscard]] const QStyleOptionViewItem& option() const { return m_option; }

    [[nodiscard]] const Theme& theme() const { return m_theme; }

    [[nodiscard]] bool isChecked() const;
    [[nodiscard]] QString text(int role = Qt::DisplayRole) const;

    /// Fills the row, `inset` from its sides, while it is pressed, current or under the pointer.
    void paintFill(int inset = 0) const;

    /// `place`, given within a row that reads from left to right, in this row's direction.
    [[nodiscard]] QRect placed(const QRect& place) const;

    /// Writes one line with the painter's font and pen, centred vertically. `place` as for
    /// placed(), AlignLeft for the leading edge.
    void write(
        const QString& text,
        const QRect& place,
        Qt::Alignment alignment = Qt::AlignLeft,
        Qt::TextFlag flag = Qt::TextSingleLine) const;

private:
    QPainter& m_painter;
    const QStyleOptionViewItem& m_option;
    const QModelIndex& m_index;
    Theme m_theme;
};

} // namespace quorvane
