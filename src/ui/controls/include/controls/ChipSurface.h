// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

class QPainter;

namespace quorvane {

/// The framed surface of whatever takes a press: measures and look, no content.
struct ChipSurface {
    static constexpr int height = 30;
    static constexpr int horizontalPadding = 10;
    static constexpr double cornerRadius = 8;
    static constexpr double frameWidth = 1;

    enum class Frame { Plain, Open };

    /// Fill, the look's overlay and the frame; while what the chip opens is open, the frame is in
    /// the accent's ink.
    static void paint(
        QPainter& painter,
        const QRectF& rect,
        const Theme& theme,
        PressableControl::VisualState state,
        Frame frame = Frame::Plain);
};

} // namespace quorvane
