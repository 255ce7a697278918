// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

class QPainter;

namespace quorvane {

/// The framed surface of whatever takes a press: its measures and how it is painted, no content.
struct ChipSurface {
    static constexpr int height = 30;
    static constexpr int horizontalPadding = 10;
    static constexpr double cornerRadius = 8;
    static constexpr double frameWidth = 1;

    enum class Frame { Plain, Open };

    /// The fill, the visual state's overlay and the frame. While what the chip opens is open, the
    /// frame has the accent's colour.
    static void paint(
        QPainter& painter,
        const QRectF& rect,
        const Theme& theme,
        PressableControl::VisualState state,
        Frame frame = Frame::Plain);
};

} // namespace quorvane
