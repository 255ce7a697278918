// SPDX-License-Identifier: MIT
#include "ChoiceRow.h"

#include <controls/SymbolPainter.h>

#include <QPainter>
#include <QStyle>

namespace quorvane {

namespace {

constexpr int sampleDistance = 16;
constexpr SymbolStyle markStyle{12, SymbolStyle::semibold};

} // namespace

ChoiceRow::ChoiceRow(const QString& title, bool isChosen, QWidget* parent)
    : MenuRow(title, parent) {
    setCheckable(true);
    setChecked(isChosen);
}

void ChoiceRow::setSample(const QString& sample) {
    m_sample = sample;
    setAccessibleDescription(sample);
    update();
}

QSize ChoiceRow::sizeHint() const {
    return {titleStart + titleWidth() + horizontalPadding, rowHeight};
}

void ChoiceRow::paintContent(QPainter& painter, const Theme& theme) {
    const QRect slot(horizontalPadding, 0, slotWidth, rowHeight);
    if (isChecked())
        paintSymbol(painter, Symbol::Checkmark, markStyle, placed(slot), theme.accentText);
    paintTitle(painter, theme, rect().adjusted(titleStart, 0, -horizontalPadding, 0));
    paintSample(painter, theme);
}

void ChoiceRow::paintSample(QPainter& painter, const Theme& theme) const {
    const auto place =
        rect().adjusted(titleStart + titleWidth() + sampleDistance, 0, -horizontalPadding, 0);
    const auto shown =
        QFontMetrics(titleFont()).elidedText(m_sample, Qt::ElideRight, place.width());
    painter.setFont(titleFont());
    painter.setPen(theme.secondaryText);
    painter.drawText(
        placed(place),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignRight)) |
            Qt::AlignVCenter | Qt::TextSingleLine,
        shown);
}

} // namespace quorvane
