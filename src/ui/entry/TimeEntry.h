// SPDX-License-Identifier: MIT
#pragma once

#include <time/HourCycle.h>
#include <time/TimeZone.h>
#include <time/TypedTime.h>

#include <QString>

#include <optional>

namespace quorvane {

/// A time of day as it is typed; the texts may be anything.
struct TimeTexts {
    QString hourText;
    QString minuteText;
    bool isPM = false; ///< of no account where hours are counted to 23

    friend bool operator==(const TimeTexts&, const TimeTexts&) = default;
};

/// Whether it is one from 1 to 12, or from 0 to 23.
[[nodiscard]] bool isHour(qint64 number, HourCycle cycle);

[[nodiscard]] bool isMinute(qint64 number);

/// Of twelve hours the hour without a leading zero, midnight and noon as 12; of 24 the hour with
/// two digits. The minute with two digits.
[[nodiscard]] TimeTexts
loadedTime(Instant date, const TimeZone& zone, HourCycle cycle = HourCycle::Twelve);

/// The typed time on the day of `date`, at the full minute. None unless both texts are numbers, in
/// the digits of any script, and those of an hour and of a minute.
[[nodiscard]] std::optional<Instant> savedTime(
    const TimeTexts& texts,
    Instant date,
    const TimeZone& zone,
    HourCycle cycle = HourCycle::Twelve);

/// The texts with a typed time in place of theirs: a time without a word for the half of the day
/// leaves it, where there is one and the hour is on the dial. A time without a minute leaves that.
[[nodiscard]] TimeTexts
withTypedTime(const TypedTime& time, const TimeTexts& texts, HourCycle cycle);

/// The hour and minute of `now` on the day of `date`.
[[nodiscard]] Instant withTimeOf(Instant now, Instant date, const TimeZone& zone);

/// The hour `step` on, round the clock from 12 to 1, or from 23 to 00. A text that is no number
/// counts as 12, or as 0.
[[nodiscard]] QString
steppedHour(QStringView text, qint64 step, HourCycle cycle = HourCycle::Twelve);

/// The minute `step` on, from 59 to 00, with two digits. A text that is no number counts as 0.
[[nodiscard]] QString steppedMinute(QStringView text, qint64 step);

} // namespace quorvane
