// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Symbol.h>

#include <QColor>
#include <QFont>
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

/// A symbol, box or gap of so many points beside body text of 13 pixels, for text of a widget whose
/// font is `body`: what stands beside text grows and shrinks with it. Whole points, never less than
/// three quarters, and all of them where the text is less than a tenth larger or smaller, so that
/// symbols stay on the pixels that they are drawn for.
[[nodiscard]] int besideText(const QFont& body, double points);

/// Likewise, a symbol's size; its stroke goes with it.
[[nodiscard]] SymbolStyle besideText(const QFont& body, SymbolStyle style);

/// Draws a symbol in one colour, centred on `rect`, crisp at the painter's scale.
void paintSymbol(
    QPainter& painter, Symbol symbol, SymbolStyle style, const QRectF& rect, const QColor& color);

} // namespace quorvane
