// SPDX-License-Identifier: MIT
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

QSize ActionButton::sizeHint() const {
    const auto label = QFontMetricsF(labelFont()).horizontalAdvance(text());
    const double content = besideText(font(), SymbolStyle()).size + spacing + std::ceil(label);
    return {static_cast<int>(content) + 2 * horizontalPadding, buttonHeight};
}

double ActionButton::cornerRadius() const {
    return ChipSurface::cornerRadius;
}

void ActionButton::paintControl(QPainter& painter, const Theme& theme) {
    paintSurface(painter, theme);
    paintFace(painter, theme);
}

void ActionButton::paintFace(QPainter& painter, const Theme& theme) {
    const bool prominent = isFilled(theme);
    paint(
        painter,
        {m_symbol,
         text(),
         prominent ? theme.onAccent : theme.secondaryText,
         prominent ? theme.onAccent : theme.text});
}

void ActionButton::paint(QPainter& painter, const Face& face) const {
    ContentRow row(spacing);
    row.addSymbol(face.symbol, besideText(font(), SymbolStyle()), face.symbolColor);
    row.addText(face.label, labelFont(), face.labelColor);
    QRectF place(0, 0, row.width(), height());
    place.moveCenter(QRectF(rect()).center());
    row.paint(painter, place, layoutDirection());
}

QFont ActionButton::labelFont() const {
    const bool prominent = m_prominence == Prominence::Prominent;
    return textFont(font(), TextStyle::Body, prominent ? QFont::DemiBold : QFont::Medium);
}

/// Text on a fill that is dimmed cannot be read: where contrast matters, a frame is left of it.
bool ActionButton::isFilled(const Theme& theme) const {
    return m_prominence == Prominence::Prominent && (isEnabled() || !theme.isHighContrast);
}

void ActionButton::paintSurface(QPainter& painter, const Theme& theme) const {
    if (isFilled(theme))
        fillRounded(painter, rect(), cornerRadius(), accentFill(visualState(), theme));
    else
        ChipSurface::paint(painter, rect(), theme, visualState());
}

} // namespace quorvane
