// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/DevicePixels.h>

namespace quorvane {

void ChipSurface::paint(
    QPainter& painter,
    const QRectF& rect,
    const Theme& theme,
    PressableControl::VisualState state,
    Frame frame) {
    fillRounded(painter, rect, cornerRadius, theme.controlBackground);
    fillRounded(painter, rect, cornerRadius, overlayFor(state, theme));
    const auto& color = frame == Frame::Open ? theme.accentText : theme.border;
    frameRounded(painter, rect, cornerRadius, color, frameWidth);
}

} // namespace quorvane
