// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Symbol.h>

#include <QColor>
#include <QRectF>

class QPainter;

namespace quorvane {

/// Size in points and weight of a symbol: the stroke's width on its own grid of 16 by 16.
struct SymbolStyle {
    static constexpr double regular = 1.5;
    static constexpr double semibold = 1.75;
    static constexpr double bold = 2.25;

    double size = 16;
    double strokeWidth = regular;
};

/// Draws a symbol in one colour, centred on `rect`, crisp at the painter's scale.
void paintSymbol(
    QPainter& painter, Symbol symbol, SymbolStyle style, const QRectF& rect, const QColor& color);

} // namespace quorvane
