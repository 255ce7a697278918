// SPDX-License-Identifier: MIT
#include "StarMark.h"

namespace quorvane {

void paintStarred(QPainter& painter, double size, const QRectF& rect, const Theme& theme) {
    constexpr double edge = 1;
    paintSymbol(painter, Symbol::StarFill, {size, edge}, rect, theme.star);
    paintSymbol(painter, Symbol::Star, {size, edge}, rect, theme.starBorder);
}

} // namespace quorvane
