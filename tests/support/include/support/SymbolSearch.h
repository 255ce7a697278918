// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SymbolPainter.h>

#include <QImage>
#include <QRect>
#include <QWidget>

#include <optional>

namespace quorvane {

/// How a symbol is expected to be painted.
struct ExpectedSymbol {
    Symbol symbol;
    SymbolStyle style;
    QColor color;
};

/// Where the picture, at one device pixel a point, shows the symbol on a background of one colour;
/// none if it does not.
[[nodiscard]] std::optional<QRect> placeOf(const ExpectedSymbol& expected, const QImage& picture);

/// The same in a widget as it is painted now.
[[nodiscard]] std::optional<QRect> placeOf(const ExpectedSymbol& expected, QWidget& widget);

} // namespace quorvane
