// SPDX-License-Identifier: MIT
#pragma once

#include "DateNames.h"

#include <time/CivilTime.h>
#include <time/TypedDate.h>
#include <time/UserLocale.h>

#include <QRegularExpression>
#include <unicode/smpdtfmt.h>

namespace quorvane {

/// Reads days that are written by one of a locale's own patterns, in its own calendar. Numbers may
/// have a leading zero or none, years two digits or four; between numbers stands any of "/", "."
/// and "-", whatever the pattern has; years may have their era.
class TypedDayPattern {
public:
    TypedDayPattern(const QString& pattern, const icu::DateFormatSymbols& symbols);

    /// A year of two digits is one from 80 years before `today` to 19 after it.
    [[nodiscard]] TypedDate
    read(const QString& comparable, CivilDay today, const UserLocale& locale) const;

private:
    [[nodiscard]] std::optional<int> monthIn(const QRegularExpressionMatch& match) const;

    NumbersByName m_months;
    QRegularExpression m_expression; ///< matches nothing if the pattern has other fields
};

} // namespace quorvane
