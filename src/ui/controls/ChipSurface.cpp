// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/DevicePixels.h>

namespace quorvane {

void ChipSurface::paint(
    QPainter& painter,
    const QRectF& rect,
    const Theme& theme,
    PressableControl::Look look,
    Frame frame) {
    fillRounded(painter, rect, cornerRadius, theme.base);
    fillRounded(painter, rect, cornerRadius, overlayFor(look, theme));
    const auto& ink = frame == Frame::Open ? theme.accentText : theme.sep;
    frameRounded(painter, rect, cornerRadius, ink, frameWidth);
}

} // namespace quorvane
