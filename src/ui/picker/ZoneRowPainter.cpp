// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <picker/ZoneList.h>
#include <picker/ZoneRowPainter.h>

#include <QPainter>
#include <QStyle>

namespace quorvane {

namespace {

constexpr double fillRadius = 6;
constexpr double currentTint = 0.12;

} // namespace

ZoneRowPainter::ZoneRowPainter(
    QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
    : m_painter(painter),
      m_option(option),
      m_index(index),
      m_theme(Theme::of(option.palette)) {
}

bool ZoneRowPainter::isChecked() const {
    return m_index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
}

QString ZoneRowPainter::text(int role) const {
    return m_index.data(role).toString();
}

void ZoneRowPainter::paintFill(int inset) const {
    const QRectF place = QRectF(m_option.rect).adjusted(inset, 0, -inset, 0);
    const auto* list = qobject_cast<const ZoneList*>(m_option.widget);
    if (list != nullptr && list->isPressed(m_index))
        fillRounded(m_painter, place, fillRadius, m_theme.pressOverlay);
    else if (list != nullptr && list->currentIndex() == m_index)
        fillRounded(m_painter, place, fillRadius, withOpacity(m_theme.accentText, currentTint));
    else if (m_option.state.testFlag(QStyle::State_MouseOver))
        fillRounded(m_painter, place, fillRadius, m_theme.hoverOverlay);
}

QRect ZoneRowPainter::placed(const QRect& place) const {
    return QStyle::visualRect(
        m_option.direction, m_option.rect, place.translated(m_option.rect.topLeft()));
}

void ZoneRowPainter::write(
    const QString& text, const QRect& place, Qt::Alignment alignment, Qt::TextFlag flag) const {
    const auto leading = QStyle::visualAlignment(m_option.direction, alignment);
    m_painter.drawText(
        placed(place),
        static_cast<int>(leading) | Qt::AlignVCenter | Qt::TextSingleLine | flag,
        text);
}

} // namespace quorvane
