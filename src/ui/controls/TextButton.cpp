// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/TextButton.h>
#include <controls/TextStyle.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int buttonHeight = 24;

} // namespace

TextButton::TextButton(const QString& label, QWidget* parent) : PressableControl(parent) {
    setText(label);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TextButton::sizeHint() const {
    const QFontMetricsF metrics(textFont(font(), TextStyle::Headline));
    const auto label = static_cast<int>(std::ceil(metrics.horizontalAdvance(text())));
    const int line = static_cast<int>(std::ceil(metrics.height()));
    return {label + 2 * horizontalPadding, std::max(buttonHeight, line)};
}

double TextButton::cornerRadius() const {
    return 6;
}

void TextButton::paintControl(QPainter& painter, const Theme& theme) {
    fillRounded(painter, rect(), cornerRadius(), overlayFor(visualState(), theme));
    painter.setFont(textFont(font(), TextStyle::Headline));
    painter.setPen(theme.accentText);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace quorvane
