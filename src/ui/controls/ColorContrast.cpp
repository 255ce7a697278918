// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr float lightnessStep = 0.01F;

double linear(int eightBits) {
    const double channel = eightBits / 255.0;
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Of the colour as a screen shows it: a ratio that holds only before rounding is not met.
double relativeLuminance(const QColor& color) {
    const QRgb shown = color.rgb();
    return 0.2126 * linear(qRed(shown)) + 0.7152 * linear(qGreen(shown)) +
           0.0722 * linear(qBlue(shown));
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor blended(const QColor& top, const QColor& bottom) {
    const float alpha = top.alphaF();
    const auto mix = [alpha](float over, float under) {
        return over * alpha + under * (1 - alpha);
    };
    return QColor::fromRgbF(
        mix(top.redF(), bottom.redF()),
        mix(top.greenF(), bottom.greenF()),
        mix(top.blueF(), bottom.blueF()));
}

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor pushedToContrast(QColor color, const QColor& background, double ratio) {
    const bool lighten =
        contrastRatio(Qt::white, background) > contrastRatio(Qt::black, background);
    auto [hue, saturation, lightness, alpha] = std::array<float, 4>{};
    color.getHslF(&hue, &saturation, &lightness, &alpha);
    const float end = lighten ? 1 : 0;
    while (contrastRatio(color, background) < ratio && lightness != end) {
        lightness = std::clamp(lightness + (lighten ? lightnessStep : -lightnessStep), 0.0F, 1.0F);
        color = QColor::fromHslF(std::max(hue, 0.0F), saturation, lightness, alpha).toRgb();
    }
    return color;
}

} // namespace quorvane
