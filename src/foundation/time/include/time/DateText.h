// SPDX-License-Identifier: MIT
#pragma once

#include <time/Iso8601Options.h>
#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>

namespace quorvane {

/// How much of the date, or of the time, a locale's own format shows.
enum class FormatStyle { None, Short, Medium };

struct FormatStyles {
    FormatStyle date = FormatStyle::None;
    FormatStyle time = FormatStyle::None;
};

/// An instant as text in a zone, in the calendar and the digits of a locale. Formatters are made
/// anew for every text, so that zone, locale and their data are never stale.
///
/// Where a locale's own format has U+202F NARROW NO-BREAK SPACE (as English has before AM and PM)
/// these texts have a plain space: they are pasted into forms that accept no other.

/// By a date pattern (UTS #35), taken as it is. A letter that the pattern language lacks ends the
/// text there; an empty pattern gives an empty text. Weeks are the locale's, but those of ISO 8601
/// where the pattern has one as that writes it: 'W'ww.
[[nodiscard]] QString patternText(
    Instant instant, const TimeZone& zone, const QString& pattern, const UserLocale& locale);

/// By the locale's styles; empty if both are None.
[[nodiscard]] QString
styledText(Instant instant, const TimeZone& zone, FormatStyles styles, const UserLocale& locale);

/// In ISO 8601: the Gregorian calendar, also for dates before it was introduced.
[[nodiscard]] QString iso8601Text(Instant instant, const TimeZone& zone, Iso8601Options options);

/// Hour and minute, two digits each, in the locale's clock of 12 or 24 hours.
[[nodiscard]] QString timeChipText(Instant instant, const TimeZone& zone, const UserLocale& locale);

/// Year, abbreviated month and day in the locale's order.
[[nodiscard]] QString dateChipText(Instant instant, const TimeZone& zone, const UserLocale& locale);

} // namespace quorvane
