// SPDX-License-Identifier: MIT
#include "ZoneRowDelegate.h"

#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <picker/ZoneList.h>
#include <picker/ZoneListModel.h>

#include <QFontInfo>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int rowHeight = 32;
constexpr int headHeight = 28;
constexpr int headDrop = 4;   ///< a head's text stands nearer to what it heads
constexpr int sectionGap = 4; ///< above every head but the first
constexpr int markStart = 16;
constexpr int markWidth = 16;
constexpr int textStart = 40;
constexpr int endPadding = 16;
constexpr int offsetWidth = 72;
constexpr int abbreviationWidth = 64;
constexpr int columnGap = 4;
constexpr int calloutPixels = 12; ///< the size of text that the columns are made for
constexpr int regionGap = 8;
constexpr int fillInset = 8;
constexpr double fillRadius = 6;
constexpr double currentTint = 0.12;
constexpr SymbolStyle markStyle{14, SymbolStyle::semibold};

/// A column's width for text of another size: never less.
int grown(int width, const QFont& font) {
    return width * std::max(QFontInfo(font).pixelSize(), calloutPixels) / calloutPixels;
}

/// Paints one row; positions are from the leading edge.
class RowPainter {
public:
    RowPainter(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        : m_painter(painter),
          m_option(option),
          m_index(index),
          m_theme(Theme::of(option.palette)) {}

    void paintHead() {
        const auto font = textFont(m_option.font, TextStyle::Callout, QFont::DemiBold);
        m_painter.setFont(font);
        m_painter.setPen(m_theme.secondaryText);
        auto place = placed(textStart, m_option.rect.width() - textStart - endPadding);
        place.setTop(place.bottom() + 1 - headHeight + headDrop);
        m_painter.drawText(place, leading(Qt::AlignLeft), text(Qt::DisplayRole));
    }

    void paintRow() {
        paintFill();
        const bool isSelected =
            m_index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
        if (isSelected)
            paintSymbol(
                m_painter,
                Symbol::Checkmark,
                markStyle,
                placed(markStart, markWidth),
                m_theme.accentText);
        paintTexts(
            textFont(m_option.font, TextStyle::Body, isSelected ? QFont::Medium : QFont::Normal));
    }

private:
    void paintFill() {
        const QRectF fill = QRectF(m_option.rect).adjusted(fillInset, 0, -fillInset, 0);
        const auto* list = qobject_cast<const ZoneList*>(m_option.widget);
        if (list != nullptr && list->isPressed(m_index))
            fillRounded(m_painter, fill, fillRadius, m_theme.pressOverlay);
        else if (list != nullptr && list->currentIndex() == m_index)
            fillRounded(m_painter, fill, fillRadius, withOpacity(m_theme.accentText, currentTint));
        else if (m_option.state.testFlag(QStyle::State_MouseOver))
            fillRounded(m_painter, fill, fillRadius, m_theme.hoverOverlay);
    }

    void paintTexts(const QFont& cityFont) {
        const int width = m_option.rect.width();
        const auto callout = textFont(m_option.font, TextStyle::Callout);
        const QFontMetricsF metrics(callout);
        const int offsetEnd = width - endPadding;
        const int offsetStart = offsetEnd - grown(offsetWidth, callout);
        const int abbreviationStart = offsetStart - grown(abbreviationWidth, callout);
        const auto offset = text(ZoneListModel::OffsetRole);
        // A long abbreviation reaches into what the offset leaves of its column.
        const int abbreviationEnd =
            offsetEnd - columnGap - static_cast<int>(std::ceil(metrics.horizontalAdvance(offset)));
        const int room = abbreviationStart - textStart;
        const auto city = text(Qt::DisplayRole);
        const int cityWidth =
            static_cast<int>(std::ceil(QFontMetricsF(cityFont).horizontalAdvance(city)));
        const int regionStart = textStart + cityWidth + regionGap;
        write(city, cityFont, m_theme.text, textStart, room, Qt::AlignLeft);
        write(
            text(ZoneListModel::RegionRole),
            callout,
            m_theme.secondaryText,
            regionStart,
            abbreviationStart - regionStart,
            Qt::AlignLeft);
        write(
            text(ZoneListModel::AbbreviationRole),
            callout,
            m_theme.secondaryText,
            abbreviationStart,
            abbreviationEnd - abbreviationStart,
            Qt::AlignLeft);
        write(offset, callout, m_theme.text, offsetStart, offsetEnd - offsetStart, Qt::AlignRight);
    }

    /// All texts of a row stand on the baseline of its city.
    void write(
        const QString& text,
        const QFont& font,
        const QColor& color,
        int start,
        int width,
        Qt::Alignment alignment) {
        if (width <= 0)
            return;
        const QFontMetricsF city(textFont(m_option.font, TextStyle::Body));
        const QFontMetricsF own(font);
        const double cityBaseline = (m_option.rect.height() - city.height()) / 2 + city.ascent();
        const double ownBaseline = (m_option.rect.height() - own.height()) / 2 + own.ascent();
        m_painter.setFont(font);
        m_painter.setPen(color);
        m_painter.drawText(
            placed(start, width).translated(0, std::round(cityBaseline - ownBaseline)),
            leading(alignment),
            own.elidedText(text, Qt::ElideRight, width));
    }

    [[nodiscard]] QRectF placed(int start, int width) const {
        const QRect place(
            m_option.rect.left() + start, m_option.rect.top(), width, m_option.rect.height());
        return QStyle::visualRect(m_option.direction, m_option.rect, place);
    }

    [[nodiscard]] int leading(Qt::Alignment alignment) const {
        return static_cast<int>(QStyle::visualAlignment(m_option.direction, alignment)) |
               Qt::AlignVCenter | Qt::TextSingleLine;
    }

    [[nodiscard]] QString text(int role) const { return m_index.data(role).toString(); }

    QPainter& m_painter;
    const QStyleOptionViewItem& m_option;
    const QModelIndex& m_index;
    Theme m_theme;
};

} // namespace

void ZoneRowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    painter->save();
    RowPainter row(*painter, option, index);
    if (index.data(ZoneListModel::IsHeadRole).toBool())
        row.paintHead();
    else
        row.paintRow();
    painter->restore();
}

QSize ZoneRowDelegate::sizeHint(
    const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    if (!index.data(ZoneListModel::IsHeadRole).toBool())
        return {0, rowHeight};
    return {0, index.row() == 0 ? headHeight : sectionGap + headHeight};
}

} // namespace quorvane
