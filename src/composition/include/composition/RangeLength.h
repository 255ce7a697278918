// SPDX-License-Identifier: MIT
#pragma once

#include <time/Instant.h>
#include <time/SpanText.h>
#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>

namespace quorvane {

/// How far the end of a range is from its start.
struct RangeLength {
    SpanParts span;
    bool isNegative = false; ///< the end is before the start
    bool countsDays = false; ///< in days alone

    /// From minute to minute, as clocks show them: so many days of the zone's calendar, a day of 23
    /// or 25 hours among them, and then what has really passed.
    [[nodiscard]] static RangeLength between(Instant start, Instant end, const TimeZone& zone);

    /// From day to day, where no time is shown.
    [[nodiscard]] static RangeLength daysBetween(Instant start, Instant end, const TimeZone& zone);

    /// Short, such as "3 d 4 h", "−2 h" or "0 min".
    [[nodiscard]] QString text(const UserLocale& locale) const;

    /// A sentence, for those who hear it.
    [[nodiscard]] QString words(const UserLocale& locale) const;

    friend bool operator==(const RangeLength&, const RangeLength&) = default;
};

} // namespace quorvane
