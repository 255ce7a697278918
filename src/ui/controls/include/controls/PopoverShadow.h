// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>

#include <QMargins>
#include <QRect>

class QPainter;

namespace quorvane {

/// How far a popover's shadow reaches beyond its surface, in points.
inline constexpr QMargins popoverShadowMargins{9, 3, 9, 15};

/// A shadow in steps, without blur.
void paintPopoverShadow(
    QPainter& painter, const QRect& surface, double cornerRadius, const Theme& theme);

} // namespace quorvane
