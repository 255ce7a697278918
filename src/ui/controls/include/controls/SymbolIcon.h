// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Symbol.h>

#include <QColor>
#include <QIcon>
#include <QPalette>

namespace quorvane {

/// What a symbol is drawn with where the colour of the background is unknown.
struct SymbolColors {
    QColor color;
    QColor
        halo; ///< thinly around the symbol; all that shows on a background of the symbol's colour

    /// In the palette's text colour, whose opposite is the halo: on a bar that follows the
    /// desktop's light or dark, only the symbol is seen; on one of the other tone, its outline.
    [[nodiscard]] static SymbolColors of(const QPalette& palette);
};

/// The symbol as a square icon of any size, drawn anew for each size and device pixel ratio. It
/// keeps its colours: who shows it asks for another one when the palette changes.
[[nodiscard]] QIcon symbolIcon(Symbol symbol, const SymbolColors& color);

} // namespace quorvane
