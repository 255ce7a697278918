// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace quorvane {

/// A date pattern, or a letter of one, and what it is for in the language of the interface.
struct PatternHint {
    QString pattern;
    QString purpose;
};

/// Whole patterns to take as they are.
[[nodiscard]] std::vector<PatternHint> readyPatterns();

/// The letters that most patterns are made of, each as often as it is usually written.
[[nodiscard]] std::vector<PatternHint> patternLetters();

} // namespace quorvane
