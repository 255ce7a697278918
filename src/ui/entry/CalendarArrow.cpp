// SPDX-License-Identifier: MIT
#include "CalendarArrow.h"

#include <controls/DevicePixels.h>
#include <controls/SymbolPainter.h>

namespace quorvane {

namespace {

constexpr int side = 28;
constexpr SymbolStyle arrowStyle{12, SymbolStyle::semibold};

} // namespace

CalendarArrow::CalendarArrow(Way way, const QString& name, QWidget* parent)
    : PressableControl(parent),
      m_way(way) {
    setToolTip(name);
    setFixedSize(sizeHint());
}

QSize CalendarArrow::sizeHint() const {
    return {side, side};
}

double CalendarArrow::cornerRadius() const {
    return 8;
}

void CalendarArrow::paintControl(QPainter& painter, const Theme& theme) {
    fillRounded(painter, rect(), cornerRadius(), overlayFor(visualState(), theme));
    const bool pointsLeft = (m_way == Way::Back) == (layoutDirection() == Qt::LeftToRight);
    paintSymbol(
        painter,
        pointsLeft ? Symbol::ChevronLeft : Symbol::ChevronRight,
        besideText(font(), arrowStyle),
        rect(),
        visualState() == VisualState::Normal ? theme.secondaryText : theme.text);
}

} // namespace quorvane
