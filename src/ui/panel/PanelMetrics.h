// SPDX-License-Identifier: MIT
#pragma once

/// The measures of the panel, in points.
namespace quorvane::panelmetrics {

inline constexpr int sideMargin = 18;
/// How far a control may reach beyond the column, so that its ink ends with it.
inline constexpr int overhang = 4;
inline constexpr int sectionSpacing = 14;
inline constexpr int labelHeight = 24;
inline constexpr int labelSpacing = 6; ///< between a section's label and its content
inline constexpr int chipSpacing = 6;

} // namespace quorvane::panelmetrics
