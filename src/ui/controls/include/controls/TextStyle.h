// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QRectF>

namespace quorvane {

/// The sizes that text comes in. Body is the desktop's own font; the others scale with it.
enum class TextStyle { Title, Headline, Body, Callout, Caption };

/// A style's font for a widget whose font is `body`: never below 9 pixels. Titles and headlines
/// are semibold, all others regular.
[[nodiscard]] QFont textFont(const QFont& body, TextStyle style);

/// Likewise, in another weight.
[[nodiscard]] QFont textFont(const QFont& body, TextStyle style, QFont::Weight weight);

/// In a fixed size, for what is drawn inside a fixed frame (key caps, the digits of a clock).
[[nodiscard]] QFont fixedSizeFont(QFont body, int pixels, QFont::Weight weight);

/// What a text covers when it is drawn at the origin. A font's metrics say less: there every text
/// extends down to the base line.
[[nodiscard]] QRectF foregroundOf(const QString& text, const QFont& font);

} // namespace quorvane
