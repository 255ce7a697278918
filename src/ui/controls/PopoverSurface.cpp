// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/PopoverSurface.h>

#include <QPainter>

#include <array>

namespace quorvane {

namespace {

/// How far the shadow extends beyond the surface.
constexpr QMargins shadowMargins{9, 3, 9, 15};

/// Rounded rectangles grown by so much, and moved down by 1, 2, 3 and so on.
constexpr std::array shadowGrowth{1, 2, 3, 5, 7, 9};

constexpr double frameWidth = 1;

void paintShadow(QPainter& painter, const QRect& surface, double cornerRadius, const Theme& theme) {
    for (std::size_t step = 0; step < shadowGrowth.size(); ++step) {
        const int growth = shadowGrowth.at(step);
        const auto rect = QRectF(surface)
                              .adjusted(-growth, -growth, growth, growth)
                              .translated(0, static_cast<double>(step + 1));
        fillRounded(painter, rect, cornerRadius + growth, theme.shadow.at(step));
    }
}

} // namespace

QMargins PopoverSurface::margins() const {
    return m_isComposited ? shadowMargins : QMargins();
}

QRect PopoverSurface::placeIn(const QRect& window) const {
    return window.marginsRemoved(margins());
}

void PopoverSurface::paint(
    QPainter& painter, const QRect& window, const Theme& theme, const Colors& colors) const {
    if (m_isComposited) {
        paintRaisedSurface(painter, placeIn(window), m_cornerRadius, theme, colors);
        return;
    }
    painter.fillRect(window, colors.background);
    frameRounded(painter, window, 0, theme.border, frameWidth);
}

void paintRaisedSurface(
    QPainter& painter,
    const QRect& surface,
    double cornerRadius,
    const Theme& theme,
    const PopoverSurface::Colors& colors) {
    paintShadow(painter, surface, cornerRadius, theme);
    fillRounded(painter, surface, cornerRadius, colors.background);
    frameRounded(painter, surface, cornerRadius, colors.border, frameWidth);
}

} // namespace quorvane
