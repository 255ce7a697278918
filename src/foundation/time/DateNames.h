// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <unicode/dtfmtsym.h>

#include <map>
#include <vector>

namespace quorvane {

/// What a locale calls months, weekdays and eras; each under all its names, as comparableText()
/// gives them, and mapped to its number. A name of two things is left out.
using NumbersByName = std::map<QString, int>;

/// Counted from 0 as ICU does, in the calendar of the symbols.
[[nodiscard]] NumbersByName monthNames(const icu::DateFormatSymbols& symbols);

/// Counted from Sunday as 0.
[[nodiscard]] NumbersByName weekdayNames(const icu::DateFormatSymbols& symbols);

[[nodiscard]] std::vector<QString> eraNames(const icu::DateFormatSymbols& symbols);

/// A regular expression for any of the names, the longest first; dots and spaces in them may be
/// left out.
[[nodiscard]] QString anyOf(std::vector<QString> names);

[[nodiscard]] std::vector<QString> namesIn(const NumbersByName& numbers);

} // namespace quorvane
