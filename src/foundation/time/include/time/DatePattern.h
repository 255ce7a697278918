// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <vector>

namespace quorvane {

/// Where a date pattern (UTS #35) has letters that stand for nothing, in their order: a formatter
/// ends its text at the first of them. Text in quotes has no letters, also where its closing quote
/// is missing.
[[nodiscard]] std::vector<qsizetype> unknownPatternLetters(QStringView pattern);

/// Whether a date pattern (UTS #35) has the number of a week behind a quoted W, as ISO 8601 writes
/// it: 'W'ww.
[[nodiscard]] bool hasIsoWeek(QStringView pattern);

} // namespace quorvane
