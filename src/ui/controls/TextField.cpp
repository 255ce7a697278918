// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/Contrast.h>
#include <controls/DevicePixels.h>
#include <controls/TextField.h>

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace quorvane {

namespace {

constexpr double focusFrameWidth = 2;
constexpr double selectionOpacity = 0.24;
/// What QLineEdit itself keeps free at its sides.
constexpr int builtInPadding = 2;

} // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    constexpr int padding = ChipSurface::horizontalPadding - builtInPadding;
    setTextMargins(padding, 0, padding, 0);
    adoptColors();
}

QSize TextField::sizeHint() const {
    return {QLineEdit::sizeHint().width(), ChipSurface::height};
}

QSize TextField::minimumSizeHint() const {
    return {QLineEdit::minimumSizeHint().width(), ChipSurface::height};
}

void TextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        paintSurface(painter);
        if (hasFocus())
            frameRounded(
                painter,
                rect(),
                ChipSurface::cornerRadius,
                Theme::of(surroundings()).accentText,
                focusFrameWidth);
    }
    QLineEdit::paintEvent(event);
}

void TextField::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_adopting)
        adoptColors();
}

void TextField::paintSurface(QPainter& painter) {
    ChipSurface::paint(painter, rect(), Theme::of(surroundings()), PressableControl::Look::Rest);
}

const QPalette& TextField::surroundings() const {
    return parentWidget() != nullptr ? parentWidget()->palette() : palette();
}

void TextField::adoptColors() {
    const QScopedValueRollback adopting(m_adopting, true);
    const auto theme = Theme::of(surroundings());
    QPalette own;
    // The surface is ours; a style that fills a line edit must not paint over it.
    own.setColor(QPalette::Base, Qt::transparent);
    own.setColor(QPalette::Highlight, withOpacity(theme.accentText, selectionOpacity));
    own.setColor(QPalette::HighlightedText, theme.text);
    own.setColor(QPalette::PlaceholderText, theme.text2);
    setPalette(own);
}

} // namespace quorvane
