// SPDX-License-Identifier: MIT
#include "CommandRow.h"

#include <controls/SymbolPainter.h>

#include <QPainter>
#include <QStyle>

#include <cmath>

namespace quorvane {

namespace {

constexpr int symbolGap = 8;
constexpr int keysDistance = 32;
constexpr int symbolSize = 16;

} // namespace

CommandRow::CommandRow(
    Symbol symbol, const QString& title, const QKeySequence& keys, QWidget* parent)
    : MenuRow(title, parent),
      m_symbol(symbol),
      m_keys(keys.toString(QKeySequence::NativeText)) {
    setAccessibleDescription(m_keys);
}

QSize CommandRow::sizeHint() const {
    const int symbol = besideText(font(), symbolSize);
    const int keys = m_keys.isEmpty() ? 0 : keysDistance + keysWidth();
    return {2 * horizontalPadding + symbol + symbolGap + titleWidth() + keys, rowHeight};
}

void CommandRow::paintContent(QPainter& painter, const Theme& theme) {
    const int symbol = besideText(font(), symbolSize);
    const auto color = hasFocus() || isDown() ? theme.text : theme.secondaryText;
    const QRect symbolPlace(horizontalPadding, 0, symbol, rowHeight);
    paintSymbol(painter, m_symbol, {static_cast<double>(symbol)}, placed(symbolPlace), color);
    const int titleStart = horizontalPadding + symbol + symbolGap;
    const auto rest = rect().adjusted(titleStart, 0, -horizontalPadding, 0);
    paintTitle(painter, theme, rest);
    painter.setPen(theme.secondaryText);
    painter.drawText(
        placed(rest),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignRight)) |
            Qt::AlignVCenter | Qt::TextSingleLine,
        m_keys);
}

int CommandRow::keysWidth() const {
    return static_cast<int>(std::ceil(QFontMetricsF(titleFont()).horizontalAdvance(m_keys)));
}

} // namespace quorvane
