// SPDX-License-Identifier: MIT
#include "SegmentButton.h"

#include <controls/ChipSurface.h>
#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <controls/TextStyle.h>

#include <QPainter>

#include <cmath>

namespace quorvane {

namespace {

constexpr int labelHeight = 26;
constexpr int inset = 2;
constexpr int labelPadding = 8;
constexpr double segmentRadius = 6;
constexpr double selectedTint = 0.15;

} // namespace

SegmentButton::SegmentButton(const QString& title, QWidget* control) : PressableControl(control) {
    setText(title);
    setCheckable(true);
}

QSize SegmentButton::sizeHint() const {
    // As wide as with the bolder of its two weights, so that selecting moves nothing.
    const QFontMetricsF metrics(textFont(font(), TextStyle::Callout, QFont::DemiBold));
    const int label = static_cast<int>(std::ceil(metrics.horizontalAdvance(text())));
    return {label + 2 * (labelPadding + inset), ChipSurface::height};
}

FocusOutline SegmentButton::focusOutline() const {
    const QRectF control(parentWidget()->rect());
    return {control.translated(-QPointF(pos())), ChipSurface::cornerRadius};
}

double SegmentButton::cornerRadius() const {
    return segmentRadius;
}

void SegmentButton::paintControl(QPainter& painter, const Theme& theme) {
    const QRectF label(inset, (height() - labelHeight) / 2.0, width() - 2 * inset, labelHeight);
    const auto fill = isChecked() ? withOpacity(theme.accentText, selectedTint)
                                  : overlayFor(visualState(), theme);
    fillRounded(painter, label, segmentRadius, fill);
    painter.setFont(
        textFont(font(), TextStyle::Callout, isChecked() ? QFont::DemiBold : QFont::Normal));
    painter.setPen(isChecked() ? theme.accentText : theme.text);
    painter.drawText(label, Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace quorvane
