// SPDX-License-Identifier: MIT
#pragma once

#include "LocalOffset.h"

#include <QByteArrayView>

#include <optional>

namespace quorvane {

/// The rule by which a zone goes on after the last transition that its file lists: a TZ text of
/// POSIX.1-2017, 8.3, with the times beyond a day that RFC 9636, 3.3.1, adds.
class PosixRule {
public:
    /// None for a text that is no rule, such as an empty one.
    [[nodiscard]] static std::optional<PosixRule> parse(QByteArrayView text);

    /// At so many seconds since 1970; the rule holds for ever, both ways.
    [[nodiscard]] LocalOffset at(long long seconds) const;

    /// A moment of each year in local time.
    struct YearMoment {
        enum class Kind { DayWithoutLeapDay, DayOfYear, WeekdayOfMonth };

        Kind kind = Kind::DayOfYear;
        int month = 1;
        int week = 1; ///< 5 is the last
        int day = 0;  ///< of the week from Sunday, or of the year
        int seconds = 7200;
    };

private:
    LocalOffset m_standard;
    std::optional<LocalOffset> m_daylight;
    YearMoment m_start; ///< of daylight time, in standard time
    YearMoment m_end;   ///< in daylight time
};

} // namespace quorvane
