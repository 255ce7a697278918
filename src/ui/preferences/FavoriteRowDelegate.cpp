// SPDX-License-Identifier: MIT
#include "FavoriteRowDelegate.h"

#include "StarredFilter.h"

#include <controls/ColorContrast.h>
#include <controls/WrappedText.h>
#include <picker/ZoneListModel.h>
#include <picker/ZoneRowPainter.h>

#include <QPainter>

#include <cmath>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int leastHeight = 36;
constexpr int leastPadding = 3; ///< above the city and below the offset
constexpr int starStart = 8;
constexpr int starSize = 16;
constexpr int textStart = 32;
constexpr int endPadding = 12; ///< the scroll bar's
constexpr int bulletGap = 4;
constexpr double bulletOpacity = 0.6;

int textHeight(const QFont& body) {
    return lineHeight(body, TextStyle::Body) + lineHeight(body, TextStyle::Caption);
}

/// Paints one row; positions are from the leading edge.
class RowPainter {
public:
    RowPainter(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        : m_row(painter, option, index) {}

    void paint() {
        m_row.paintFill();
        paintStar();
        const int cityHeight = lineHeight(body(), TextStyle::Body);
        const int top = (m_row.option().rect.height() - textHeight(body())) / 2;
        paintCity(top, cityHeight);
        paintCaption(top + cityHeight, lineHeight(body(), TextStyle::Caption));
    }

private:
    void paintStar() {
        const auto& theme = m_row.theme();
        const auto star = m_row.placed({starStart, 0, starSize, m_row.option().rect.height()});
        if (m_row.isChecked())
            paintStarred(m_row.painter(), starSize, star, theme);
        else
            paintSymbol(m_row.painter(), Symbol::Star, {}, star, theme.secondaryText);
    }

    void paintCity(int top, int height) {
        const int room = m_row.option().rect.width() - textStart - endPadding;
        const auto font = textFont(body(), TextStyle::Body);
        const auto city = QFontMetricsF(font).elidedText(m_row.text(), Qt::ElideRight, room);
        m_row.painter().setFont(font);
        m_row.painter().setPen(m_row.theme().text);
        write(city, {textStart, top, room, height});
    }

    void paintCaption(int top, int height) {
        m_row.painter().setFont(textFont(body(), TextStyle::Caption));
        QRect place(textStart, top, 0, height);
        const auto append = [&](const QString& text, const QColor& color) {
            const QFontMetricsF metrics(m_row.painter().font());
            place.setWidth(static_cast<int>(std::ceil(metrics.horizontalAdvance(text))));
            m_row.painter().setPen(color);
            write(text, place);
            place.translate(place.width() + bulletGap, 0);
        };
        const auto& color = m_row.theme().secondaryText;
        append(m_row.text(ZoneListModel::OffsetRole), color);
        for (const int role : {ZoneListModel::AbbreviationRole, ZoneListModel::ReasonRole}) {
            const auto more = m_row.text(role);
            if (more.isEmpty())
                continue;
            append(u"·"_s, withOpacity(color, bulletOpacity));
            append(more, color);
        }
    }

    void write(const QString& text, const QRect& place) {
        m_row.write(text, place, Qt::AlignLeft, Qt::TextDontClip);
    }

    [[nodiscard]] const QFont& body() const { return m_row.option().font; }

    ZoneRowPainter m_row;
};

} // namespace

void FavoriteRowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    painter->save();
    RowPainter(*painter, option, index).paint();
    painter->restore();
}

QSize FavoriteRowDelegate::sizeHint(
    const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
    return {0, std::max(leastHeight, textHeight(option.font) + 2 * leastPadding)};
}

} // namespace quorvane
