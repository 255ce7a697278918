// SPDX-License-Identifier: MIT
#include "ChoiceRow.h"

#include <controls/SymbolPainter.h>

namespace quorvane {

namespace {

constexpr int slotWidth = 12;
constexpr int slotGap = 8;
constexpr SymbolStyle markStyle{12, SymbolStyle::semibold};

} // namespace

ChoiceRow::ChoiceRow(const QString& title, bool isChosen, QWidget* parent)
    : MenuRow(title, parent) {
    setCheckable(true);
    setChecked(isChosen);
}

QSize ChoiceRow::sizeHint() const {
    return {2 * horizontalPadding + slotWidth + slotGap + titleWidth(), rowHeight};
}

void ChoiceRow::paintContent(QPainter& painter, const Theme& theme) {
    const QRect slot(horizontalPadding, 0, slotWidth, rowHeight);
    if (isChecked())
        paintSymbol(painter, Symbol::Checkmark, markStyle, placed(slot), theme.accentText);
    constexpr int titleStart = horizontalPadding + slotWidth + slotGap;
    paintTitle(painter, theme, rect().adjusted(titleStart, 0, -horizontalPadding, 0));
}

} // namespace quorvane
