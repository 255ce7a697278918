// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace quorvane {

/// A part of a date pattern (UTS #35): a field, or the text between two of them.
struct PatternPart {
    QChar letter;   ///< of the field; null for a text
    int length = 0; ///< how often the letter stands there
    QString text;   ///< without its quotes
};

[[nodiscard]] std::vector<PatternPart> patternParts(const QString& pattern);

} // namespace quorvane
