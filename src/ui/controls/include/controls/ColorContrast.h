// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace quorvane {

/// Contrast of two opaque colours as WCAG 2.1 defines it: 1 (none) to 21 (black on white).
[[nodiscard]] double contrastRatio(const QColor& a, const QColor& b);

/// What one sees of `top`, with its alpha, over the opaque `bottom`.
[[nodiscard]] QColor blended(const QColor& top, const QColor& bottom);

/// `color` with another opacity, 0 to 1.
[[nodiscard]] QColor withOpacity(QColor color, double opacity);

/// `color` moved in lightness, hue kept, away from `background` until it has `ratio` against it.
/// Black or white where no lightness reaches that.
[[nodiscard]] QColor pushedToContrast(QColor color, const QColor& background, double ratio);

} // namespace quorvane
