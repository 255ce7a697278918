// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <controls/TextField.h>

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvane {

namespace {

constexpr double focusFrameWidth = 2;
constexpr double selectionOpacity = 0.24;
/// What QLineEdit itself keeps free at its sides.
constexpr int builtInPadding = 2;

} // namespace

TextField::TextField(PasteReader reader, QWidget* parent) : LineEdit(std::move(reader), parent) {
    setFrame(false);
    setPadding(ChipSurface::horizontalPadding, ChipSurface::horizontalPadding);
    adoptColors();
    alignText();
}

QSize TextField::sizeHint() const {
    return {LineEdit::sizeHint().width(), ChipSurface::height};
}

QSize TextField::minimumSizeHint() const {
    return {LineEdit::minimumSizeHint().width(), ChipSurface::height};
}

void TextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        paintSurface(painter);
        const auto theme = Theme::of(surroundingPalette());
        if (hasFocus() || isRefused())
            frameRounded(
                painter,
                rect(),
                ChipSurface::cornerRadius,
                isRefused() ? theme.danger : theme.accentText,
                focusFrameWidth);
    }
    LineEdit::paintEvent(event);
}

void TextField::changeEvent(QEvent* event) {
    LineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_adopting)
        adoptColors();
    else if (event->type() == QEvent::FontChange)
        centerText();
    else if (event->type() == QEvent::LayoutDirectionChange)
        alignText();
}

void TextField::resizeEvent(QResizeEvent* event) {
    LineEdit::resizeEvent(event);
    centerText();
}

void TextField::setPadding(int left, int right) {
    auto margins = textMargins();
    margins.setLeft(left - builtInPadding);
    margins.setRight(right - builtInPadding);
    setTextMargins(margins);
}

void TextField::alignText() {
    // By itself QLineEdit goes by the script of what it holds: the text would leave its column with
    // the first letter that one types.
    const auto edge = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    setAlignment(edge | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void TextField::centerText() {
    // Small letters stand in the middle, as in the other controls; QLineEdit itself centres what
    // the font keeps free for its highest and lowest glyphs, far from even in many a fixed font.
    const auto metrics = fontMetrics();
    const double baseline = std::ceil((height() + QFontMetricsF(font()).xHeight()) / 2);
    const int top = static_cast<int>(baseline) - metrics.ascent();
    const int lowering = 2 * top - (height() - metrics.height() + 1);
    auto margins = textMargins();
    margins.setTop(std::max(lowering, 0));
    margins.setBottom(std::max(-lowering, 0));
    setTextMargins(margins);
}

void TextField::paintSurface(QPainter& painter) {
    ChipSurface::paint(
        painter, rect(), Theme::of(surroundingPalette()), PressableControl::VisualState::Normal);
}

const QPalette& TextField::surroundingPalette() const {
    return parentWidget() != nullptr ? parentWidget()->palette() : palette();
}

void TextField::adoptColors() {
    const QScopedValueRollback adopting(m_adopting, true);
    const auto theme = Theme::of(surroundingPalette());
    QPalette own;
    // The surface is ours; a style that fills a line edit must not paint over it.
    own.setColor(QPalette::Base, Qt::transparent);
    own.setColor(QPalette::Highlight, withOpacity(theme.accentText, selectionOpacity));
    own.setColor(QPalette::HighlightedText, theme.text);
    own.setColor(QPalette::PlaceholderText, theme.secondaryText);
    setPalette(own);
}

} // namespace quorvane
