// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SymbolPainter.h>

#include <QFont>
#include <QString>

#include <variant>
#include <vector>

namespace quorvane {

/// Symbols and texts in a row, centred vertically: what stands inside a chip or a button.
class ContentRow {
public:
    /// `spacing` is between neighbours, in points.
    explicit ContentRow(double spacing) : m_spacing(spacing) {}

    ContentRow& addSymbol(Symbol symbol, SymbolStyle style, const QColor& color);
    ContentRow& addText(const QString& text, const QFont& font, const QColor& color);

    /// In points.
    [[nodiscard]] double width() const;

    /// Paints from the leading edge of `rect` in that direction. Texts are never elided.
    void paint(QPainter& painter, QRectF rect, Qt::LayoutDirection direction) const;

private:
    struct SymbolPiece {
        Symbol symbol;
        SymbolStyle style;
        QColor color;
    };

    struct TextPiece {
        QString text;
        QFont font;
        QColor color;
    };

    using Piece = std::variant<SymbolPiece, TextPiece>;

    [[nodiscard]] static double widthOf(const Piece& piece);
    static void paintPiece(QPainter& painter, const Piece& piece, const QRectF& rect);

    double m_spacing;
    std::vector<Piece> m_pieces;
};

} // namespace quorvane
