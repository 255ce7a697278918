// SPDX-License-Identifier: MIT
#include <controls/TextStyle.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QPainterPath>

#include <algorithm>
#include <map>

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

/// Whether the family has letters of that weight, or whether Qt takes its regular ones for them.
bool hasMedium(const QString& family) {
    const auto styles = QFontDatabase::styles(family);
    const auto weights = [&](int least, int most) {
        return std::ranges::any_of(styles, [=](const QString& style) {
            const int weight = QFontDatabase::weight(family, style);
            return weight >= least && weight <= most;
        });
    };
    // Demibold ones are as near as regular ones.
    return !weights(QFont::Normal, QFont::Normal) || weights(QFont::Normal + 1, QFont::DemiBold);
}

/// Regular where a family's medium letters would be the regular ones anyway: Qt would ask for the
/// font once more in each size, for 3 million instructions each, a fiftieth of a start.
QFont::Weight distinctWeight(const QFontInfo& body, QFont::Weight weight) {
    if (weight != QFont::Medium)
        return weight;
    static std::map<QString, bool> known;
    const auto [found, isNew] = known.try_emplace(body.family());
    if (isNew)
        found->second = hasMedium(body.family());
    return found->second ? QFont::Medium : QFont::Normal;
}

} // namespace

QFont textFont(const QFont& body, TextStyle style) {
    const bool isHeading = style == TextStyle::Title || style == TextStyle::Headline;
    return textFont(body, style, isHeading ? QFont::DemiBold : QFont::Normal);
}

QFont textFont(const QFont& body, TextStyle style, QFont::Weight weight) {
    const QFontInfo info(body);
    const int pixels = qRound(info.pixelSize() * sizeOf(style) / bodySize);
    return fixedSizeFont(body, std::max(pixels, leastSize), distinctWeight(info, weight));
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
