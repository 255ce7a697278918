// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/PushButton.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>

#include <QPainter>

#include <cmath>

namespace quorvane {

namespace {

constexpr int usualHeight = 28;
constexpr int horizontalPadding = 12;

QFont labelFont(const QFont& body) {
    return textFont(body, TextStyle::Body, QFont::Medium);
}

} // namespace

PushButton::PushButton(const QString& label, QWidget* parent) : PressableControl(parent) {
    setText(label);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PushButton::setLabel(const QString& label) {
    // A screen reader is told of every assignment.
    if (label == text())
        return;
    setText(label);
    updateGeometry();
}

QSize PushButton::sizeHint() const {
    const QFontMetricsF metrics(labelFont(font()));
    const auto label = static_cast<int>(std::ceil(metrics.horizontalAdvance(text())));
    return {label + 2 * horizontalPadding, besideText(font(), usualHeight)};
}

double PushButton::cornerRadius() const {
    return ChipSurface::cornerRadius;
}

void PushButton::paintControl(QPainter& painter, const Theme& theme) {
    ChipSurface::paint(painter, rect(), theme, visualState());
    painter.setFont(labelFont(font()));
    painter.setPen(theme.text);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace quorvane
