// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

namespace quorvane {

/// Which edges of a popover and of its anchor are in one line.
enum class PopoverAlignment { LeftEdges, RightEdges };

/// Where a popover of `size` goes, in global points: below its anchor, above it where there is no
/// room below but some above, and moved so that it stays inside `available`. One that is larger
/// than the screen keeps its upper left corner there.
[[nodiscard]] QRect popoverPlacement(
    const QRect& anchor, QSize size, const QRect& available, PopoverAlignment alignment);

} // namespace quorvane
