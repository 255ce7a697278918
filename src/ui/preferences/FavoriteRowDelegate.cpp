// SPDX-License-Identifier: MIT
#include "FavoriteRowDelegate.h"

#include "StarMark.h"
#include "WrappedText.h"

#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <picker/ZoneList.h>
#include <picker/ZoneListModel.h>

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
constexpr double fillRadius = 6;
constexpr double currentTint = 0.12;

int textHeight(const QFont& body) {
    return lineHeight(body, TextStyle::Body) + lineHeight(body, TextStyle::Caption);
}

/// Paints one row; positions are from the leading edge.
class RowPainter {
public:
    RowPainter(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        : m_painter(painter),
          m_option(option),
          m_index(index),
          m_theme(Theme::of(option.palette)) {}

    void paint() {
        paintFill();
        paintStar();
        const int cityHeight = lineHeight(m_option.font, TextStyle::Body);
        const int top = (m_option.rect.height() - textHeight(m_option.font)) / 2;
        paintCity(top, cityHeight);
        paintCaption(top + cityHeight, lineHeight(m_option.font, TextStyle::Caption));
    }

private:
    void paintFill() {
        const auto* list = qobject_cast<const ZoneList*>(m_option.widget);
        if (list != nullptr && list->isPressed(m_index))
            fill(m_theme.pressOverlay);
        else if (list != nullptr && list->currentIndex() == m_index)
            fill(withOpacity(m_theme.accentText, currentTint));
        else if (m_option.state.testFlag(QStyle::State_MouseOver))
            fill(m_theme.hoverOverlay);
    }

    void fill(const QColor& color) { fillRounded(m_painter, m_option.rect, fillRadius, color); }

    void paintStar() {
        const auto star = placed({starStart, 0, starSize, m_option.rect.height()});
        if (m_index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked)
            paintStarred(m_painter, starSize, star, m_theme);
        else
            paintSymbol(m_painter, Symbol::Star, {}, star, m_theme.secondaryText);
    }

    void paintCity(int top, int height) {
        const int room = m_option.rect.width() - textStart - endPadding;
        const auto font = textFont(m_option.font, TextStyle::Body);
        const auto city = QFontMetricsF(font).elidedText(
            m_index.data(Qt::DisplayRole).toString(), Qt::ElideRight, room);
        m_painter.setFont(font);
        m_painter.setPen(m_theme.text);
        draw(city, {textStart, top, room, height});
    }

    void paintCaption(int top, int height) {
        m_painter.setFont(textFont(m_option.font, TextStyle::Caption));
        QRect place(textStart, top, 0, height);
        const auto append = [&](const QString& text, const QColor& color) {
            const QFontMetricsF metrics(m_painter.font());
            place.setWidth(static_cast<int>(std::ceil(metrics.horizontalAdvance(text))));
            m_painter.setPen(color);
            draw(text, place);
            place.translate(place.width() + bulletGap, 0);
        };
        append(m_index.data(ZoneListModel::OffsetRole).toString(), m_theme.secondaryText);
        const auto abbreviation = m_index.data(ZoneListModel::AbbreviationRole).toString();
        if (abbreviation.isEmpty())
            return;
        append(u"·"_s, withOpacity(m_theme.secondaryText, bulletOpacity));
        append(abbreviation, m_theme.secondaryText);
    }

    void draw(const QString& text, const QRect& place) {
        const auto leading = QStyle::visualAlignment(m_option.direction, Qt::AlignLeft);
        m_painter.drawText(
            placed(place),
            static_cast<int>(leading) | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
            text);
    }

    [[nodiscard]] QRect placed(const QRect& place) const {
        return QStyle::visualRect(
            m_option.direction, m_option.rect, place.translated(m_option.rect.topLeft()));
    }

    QPainter& m_painter;
    const QStyleOptionViewItem& m_option;
    const QModelIndex& m_index;
    Theme m_theme;
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
