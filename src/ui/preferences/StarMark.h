// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SymbolPainter.h>
#include <controls/Theme.h>

namespace quorvane {

/// A favourite's star: yellow with a darker edge.
void paintStarred(QPainter& painter, double size, const QRectF& rect, const Theme& theme);

} // namespace quorvane
