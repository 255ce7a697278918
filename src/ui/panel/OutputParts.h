// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// The output for a text document, which makes one break of a carriage return and the line feed
/// after it: character for character as long as the output, with nothing to see in the return's
/// place. Positions in the document are then positions in the output.
[[nodiscard]] QString documentText(QString output);

/// How much of a text to show first: all of it, or about `size` characters of a longer one. Never
/// parts a surrogate pair.
[[nodiscard]] qsizetype firstPartLength(const QString& text, qsizetype size);

/// How much of a text to show after its first `shown` characters: about `size` characters and on to
/// the end of the paragraph, because a paragraph is laid out anew with all that is added to it.
/// Zero at the end.
[[nodiscard]] qsizetype nextPartLength(const QString& text, qsizetype shown, qsizetype size);

} // namespace quorvane
