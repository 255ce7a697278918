// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Symbol.h>

#include <QColor>
#include <QIcon>
#include <QPalette>

namespace quorvane {

/// What a symbol is drawn with in a bar that is not ours.
struct SymbolColors {
    QColor color;
    /// Thinly around the symbol, where the colour of the bar is unknown: all that shows on a bar of
    /// the symbol's own colour. Transparent where the bar is known.
    QColor halo = Qt::transparent;

    /// In the palette's text colour, with a halo of the opposite at half its strength: on a bar
    /// that follows the desktop's light or dark, only the symbol is seen; on one of the other tone,
    /// its outline.
    [[nodiscard]] static SymbolColors of(const QPalette& palette);
};

/// The symbol as a square icon of any size, drawn anew for each size and device pixel ratio, with
/// the margins that other icons of a bar have. It keeps its colours: who shows it asks for another
/// one when the palette changes. `themeName` is the name of the same symbol in the icon themes,
/// which a bar that gives icons its own colours prefers; empty if there is none.
[[nodiscard]] QIcon
symbolIcon(Symbol symbol, const SymbolColors& color, const QString& themeName = {});

} // namespace quorvane
