// SPDX-License-Identifier: MIT
#include <controls/TextStyle.h>

#include <QFontInfo>
#include <QPainterPath>

#include <algorithm>

namespace quorvane {

namespace {

constexpr double bodySize = 13; ///< the size of body text that the other sizes are given for
constexpr int leastSize = 9;

double sizeOf(TextStyle style) {
    switch (style) {
    case TextStyle::Title:
        return 15;
    case TextStyle::Headline:
    case TextStyle::Body:
        return bodySize;
    case TextStyle::Callout:
        return 12;
    case TextStyle::Caption:
        return 10;
    }
    return bodySize;
}

} // namespace

QFont textFont(const QFont& body, TextStyle style) {
    const bool isHeading = style == TextStyle::Title || style == TextStyle::Headline;
    return textFont(body, style, isHeading ? QFont::DemiBold : QFont::Normal);
}

QFont textFont(const QFont& body, TextStyle style, QFont::Weight weight) {
    const int pixels = qRound(QFontInfo(body).pixelSize() * sizeOf(style) / bodySize);
    return fixedSizeFont(body, std::max(pixels, leastSize), weight);
}

QFont fixedSizeFont(QFont body, int pixels, QFont::Weight weight) {
    body.setPixelSize(pixels);
    body.setWeight(weight);
    return body;
}

QRectF foregroundOf(const QString& text, const QFont& font) {
    QPainterPath outline;
    outline.addText(0, 0, font, text);
    return outline.boundingRect();
}

} // namespace quorvane
