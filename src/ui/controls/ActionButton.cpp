// SPDX-License-Identifier: MIT
#include <controls/AccentFill.h>
#include <controls/ActionButton.h>
#include <controls/ChipSurface.h>
#include <controls/ContentRow.h>
#include <controls/DevicePixels.h>
#include <controls/TextStyle.h>

#include <QPainter>

#include <cmath>

namespace quorvane {

namespace {

constexpr int buttonHeight = 34;
constexpr int horizontalPadding = 16;
constexpr double spacing = 6;

} // namespace

ActionButton::ActionButton(
    Prominence prominence, Symbol symbol, const QString& label, QWidget* parent)
    : PressableControl(parent),
      m_prominence(prominence),
      m_symbol(symbol) {
    setText(label);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ActionButton::setFace(Symbol symbol, const QString& label) {
    m_symbol = symbol;
    setText(label);
}

std::optional<QColor> ActionButton::tint(const Theme& /*theme*/) const {
    return std::nullopt;
}

QSize ActionButton::sizeHint() const {
    const auto label = QFontMetricsF(labelFont()).horizontalAdvance(text());
    const double content = SymbolStyle().size + spacing + std::ceil(label);
    return {static_cast<int>(content) + 2 * horizontalPadding, buttonHeight};
}

double ActionButton::cornerRadius() const {
    return ChipSurface::cornerRadius;
}

void ActionButton::paintControl(QPainter& painter, const Theme& theme) {
    paintSurface(painter, theme);
    const bool prominent = m_prominence == Prominence::Prominent;
    ContentRow row(spacing);
    const auto ink = tint(theme);
    row.addSymbol(m_symbol, {}, ink.value_or(prominent ? theme.onAccent : theme.text2));
    row.addText(text(), labelFont(), ink.value_or(prominent ? theme.onAccent : theme.text));
    QRectF place(0, 0, row.width(), height());
    place.moveCenter(QRectF(rect()).center());
    row.paint(painter, place, layoutDirection());
}

QFont ActionButton::labelFont() const {
    const bool prominent = m_prominence == Prominence::Prominent;
    return textFont(font(), TextStyle::Body, prominent ? QFont::DemiBold : QFont::Medium);
}

void ActionButton::paintSurface(QPainter& painter, const Theme& theme) const {
    if (m_prominence == Prominence::Prominent)
        fillRounded(painter, rect(), cornerRadius(), accentFill(look(), theme));
    else
        ChipSurface::paint(painter, rect(), theme, look());
}

} // namespace quorvane
