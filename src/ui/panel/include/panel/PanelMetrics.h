// SPDX-License-Identifier: MIT
#pragma once

/// What the panel's parts, its windows and the gallery agree on: its width and the distances that
/// more than one section keeps. In points.
namespace quorvane::panelmetrics {

/// Of the content, in the popover as in the window of its own; the height follows from it.
inline constexpr int width = 504;
inline constexpr double cornerRadius = 12; ///< of its window, where windows are composited
inline constexpr int sideMargin = 18;
/// How far a control may extend beyond the column, so that what it paints ends with the column.
inline constexpr int overhang = 4;
inline constexpr int sectionSpacing = 14;
inline constexpr int labelHeight = 24;
inline constexpr int labelSpacing = 6; ///< between a section's label and its content
inline constexpr int chipSpacing = 6;

} // namespace quorvane::panelmetrics
