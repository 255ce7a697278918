// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

/// The measures of the preferences, in points.
namespace quorvane::preferencesmetrics {

inline constexpr QSize size{400, 540}; ///< of the whole content
inline constexpr int margin = 10;
inline constexpr int dividerSpacing = 14; ///< on either side of a divider
inline constexpr int rowSpacing = 8;
inline constexpr int captionSpacing = 6;
inline constexpr int leastListHeight = 120; ///< below it the sections scroll

} // namespace quorvane::preferencesmetrics
