// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>

#include <QString>

#include <optional>

namespace quorvane {

/// A time of day as it is typed on a clock of twelve hours; the texts may be anything.
struct TimeTexts {
    QString hourText;
    QString minuteText;
    bool isPM = false;

    friend bool operator==(const TimeTexts&, const TimeTexts&) = default;
};

/// The hour without a leading zero, midnight and noon as 12; the minute with two digits.
[[nodiscard]] TimeTexts loadedTime(Instant date, const TimeZone& zone);

/// The typed time on the day of `date`, at the full minute. None unless both texts are numbers, the
/// hour from 1 to 12 and the minute from 0 to 59.
[[nodiscard]] std::optional<Instant>
savedTime(const TimeTexts& texts, Instant date, const TimeZone& zone);

/// The hour and minute of `now` on the day of `date`.
[[nodiscard]] Instant withTimeOf(Instant now, Instant date, const TimeZone& zone);

/// The hour `step` on, round the clock from 12 to 1. A text that is no number counts as 12.
[[nodiscard]] QString steppedHour(QStringView text, qint64 step);

/// The minute `step` on, from 59 to 00, with two digits. A text that is no number counts as 0.
[[nodiscard]] QString steppedMinute(QStringView text, qint64 step);

} // namespace quorvane
