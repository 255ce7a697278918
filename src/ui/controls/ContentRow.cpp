// SPDX-License-Identifier: MIT
#include <controls/ContentRow.h>

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace quorvane {

ContentRow& ContentRow::addSymbol(Symbol symbol, SymbolStyle style, const QColor& color) {
    m_pieces.emplace_back(SymbolPiece{symbol, style, color});
    return *this;
}

ContentRow& ContentRow::addText(const QString& text, const QFont& font, const QColor& color) {
    m_pieces.emplace_back(TextPiece{text, font, color});
    return *this;
}

double ContentRow::width() const {
    double width = 0;
    for (const auto& piece : m_pieces)
        width += widthOf(piece) + (width > 0 ? m_spacing : 0);
    return width;
}

void ContentRow::paint(QPainter& painter, QRectF rect, Qt::LayoutDirection direction) const {
    for (const auto& piece : m_pieces) {
        QRectF place = rect;
        place.setWidth(widthOf(piece));
        if (direction == Qt::RightToLeft)
            place.moveRight(rect.right());
        paintPiece(painter, piece, place);
        const double step = place.width() + m_spacing;
        rect.adjust(
            direction == Qt::LeftToRight ? step : 0,
            0,
            direction == Qt::RightToLeft ? -step : 0,
            0);
    }
}

double ContentRow::widthOf(const Piece& piece) {
    if (const auto* symbol = std::get_if<SymbolPiece>(&piece))
        return symbol->style.size;
    const auto& text = std::get<TextPiece>(piece);
    return std::ceil(QFontMetricsF(text.font).horizontalAdvance(text.text));
}

void ContentRow::paintPiece(QPainter& painter, const Piece& piece, const QRectF& rect) {
    if (const auto* symbol = std::get_if<SymbolPiece>(&piece)) {
        paintSymbol(painter, symbol->symbol, symbol->style, rect, symbol->color);
        return;
    }
    const auto& text = std::get<TextPiece>(piece);
    painter.setFont(text.font);
    painter.setPen(text.color);
    painter.drawText(rect, Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, text.text);
}

} // namespace quorvane
