// SPDX-License-Identifier: MIT
#include "ZoneRowDelegate.h"

#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>
#include <picker/ZoneListModel.h>
#include <picker/ZoneRowPainter.h>

#include <QFontInfo>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int rowHeight = 32;
constexpr int headHeight = 28;
constexpr int headDrop = 5;   ///< a head's text stands nearer to what it heads
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
constexpr SymbolStyle markStyle{14, SymbolStyle::semibold};

/// A column's width for text of another size: never less.
int grown(int width, const QFont& font) {
    return width * std::max(QFontInfo(font).pixelSize(), calloutPixels) / calloutPixels;
}

/// A text of a row. To find out how wide it is takes as long as to paint it, so that is done once.
class RowText {
public:
    RowText(const QString& text, const QFont& font)
        : m_text(text),
          m_font(font),
          m_metrics(font),
          m_width(m_metrics.horizontalAdvance(text)) {}

    [[nodiscard]] int width() const { return static_cast<int>(std::ceil(m_width)); }

    [[nodiscard]] const QFont& font() const { return m_font; }

    /// Where its letters stand in a row of that height, if they are centred in it.
    [[nodiscard]] double baseline(int height) const {
        return (height - m_metrics.height()) / 2 + m_metrics.ascent();
    }

    /// The text, or what of it there is room for.
    [[nodiscard]] QString fitting(int room) const {
        return m_width <= room ? m_text : m_metrics.elidedText(m_text, Qt::ElideRight, room);
    }

private:
    QString m_text;
    QFont m_font;
    QFontMetricsF m_metrics;
    double m_width;
};

/// Paints a head or a row; positions are from the leading edge.
class RowPainter {
public:
    RowPainter(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        : m_row(painter, option, index) {}

    void paintHead() {
        m_row.painter().setFont(textFont(body(), TextStyle::Callout, QFont::DemiBold));
        m_row.painter().setPen(m_row.theme().secondaryText);
        const int top = m_row.option().rect.height() - headHeight + headDrop;
        const int width = m_row.option().rect.width() - textStart - endPadding;
        m_row.write(m_row.text(), {textStart, top, width, headHeight - headDrop});
    }

    void paintRow() {
        m_row.paintFill(fillInset);
        if (m_row.isChecked())
            paintSymbol(
                m_row.painter(),
                Symbol::Checkmark,
                markStyle,
                m_row.placed(column(markStart, markWidth)),
                m_row.theme().accentText);
        paintTexts(
            textFont(body(), TextStyle::Body, m_row.isChecked() ? QFont::Medium : QFont::Normal));
    }

private:
    void paintTexts(const QFont& cityFont) {
        const auto callout = textFont(body(), TextStyle::Callout);
        const RowText city(m_row.text(), cityFont);
        const RowText abbreviation(m_row.text(ZoneListModel::AbbreviationRole), callout);
        const RowText offset(m_row.text(ZoneListModel::OffsetRole), callout);
        const int offsetEnd = m_row.option().rect.width() - endPadding;
        const int offsetStart = offsetEnd - grown(offsetWidth, callout);
        // A long abbreviation extends into what the offset leaves of its column.
        const int abbreviationEnd = offsetEnd - columnGap - offset.width();
        // That of some languages is too long even for that, and many zones have none.
        const int abbreviationStart = abbreviation.width() == 0
                                          ? abbreviationEnd
                                          : std::min(
                                                offsetStart - grown(abbreviationWidth, callout),
                                                abbreviationEnd - abbreviation.width());
        const int regionStart = textStart + city.width() + regionGap;
        const auto& text = m_row.theme().text;
        const auto& secondary = m_row.theme().secondaryText;
        write(city, text, column(textStart, abbreviationStart - textStart));
        write(
            {regionOrReason(), callout},
            secondary,
            column(regionStart, abbreviationStart - regionGap - regionStart));
        write(
            abbreviation,
            secondary,
            column(abbreviationStart, abbreviationEnd - abbreviationStart));
        write(offset, text, column(offsetStart, offsetEnd - offsetStart), Qt::AlignRight);
    }

    [[nodiscard]] QString regionOrReason() const {
        const auto reason = m_row.text(ZoneListModel::ReasonRole);
        return reason.isEmpty() ? m_row.text(ZoneListModel::RegionRole) : reason;
    }

    /// All texts of a row stand on the baseline of its city.
    void write(
        const RowText& text,
        const QColor& color,
        const QRect& place,
        Qt::Alignment alignment = Qt::AlignLeft) {
        if (place.width() <= 0)
            return;
        const double lower = cityBaseline(place.height()) - text.baseline(place.height());
        m_row.painter().setFont(text.font());
        m_row.painter().setPen(color);
        m_row.write(
            text.fitting(place.width()),
            place.translated(0, static_cast<int>(std::round(lower))),
            alignment);
    }

    [[nodiscard]] double cityBaseline(int height) const {
        const QFontMetricsF metrics(textFont(body(), TextStyle::Body));
        return (height - metrics.height()) / 2 + metrics.ascent();
    }

    /// As high as the row.
    [[nodiscard]] QRect column(int start, int width) const {
        return {start, 0, width, m_row.option().rect.height()};
    }

    [[nodiscard]] const QFont& body() const { return m_row.option().font; }

    ZoneRowPainter m_row;
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
