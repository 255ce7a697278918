// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/PopoverShadow.h>

#include <array>

namespace quorvane {

namespace {

/// Rounded rectangles grown by so much, and moved down by 1, 2, 3 and so on.
constexpr std::array shadowGrowth{1, 2, 3, 5, 7, 9};

} // namespace

void paintPopoverShadow(
    QPainter& painter, const QRect& surface, double cornerRadius, const Theme& theme) {
    for (std::size_t step = 0; step < shadowGrowth.size(); ++step) {
        const int growth = shadowGrowth.at(step);
        const auto rect = QRectF(surface)
                              .adjusted(-growth, -growth, growth, growth)
                              .translated(0, static_cast<double>(step + 1));
        fillRounded(painter, rect, cornerRadius + growth, theme.shadow.at(step));
    }
}

} // namespace quorvane
