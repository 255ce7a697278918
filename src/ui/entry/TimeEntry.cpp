// SPDX-License-Identifier: MIT
#include "TimeEntry.h"

#include "NumberText.h"

#include <time/CivilTime.h>
#include <time/TypedText.h>

namespace quorvane {

namespace {

constexpr qint64 hoursOnDial = 12;
constexpr qint64 hoursInDay = 24;
constexpr qint64 minutesInHour = 60;

/// From 0 to below `modulus`, for negative numbers too.
qint64 wrapped(qint64 number, qint64 modulus) {
    return (number % modulus + modulus) % modulus;
}

/// `number + step`, wrapped before it is added: typed numbers go up to the limits of 64 bits.
qint64 steppedAround(qint64 number, qint64 step, qint64 modulus) {
    return wrapped(wrapped(number, modulus) + wrapped(step, modulus), modulus);
}

/// The dial has 12 where counting has 0.
qint64 onDial(qint64 hour) {
    const auto counted = wrapped(hour, hoursOnDial);
    return counted == 0 ? hoursOnDial : counted;
}

QString withTwoDigits(qint64 number) {
    return QString::number(number).rightJustified(2, u'0');
}

QString hourText(qint64 hourOfDay, HourCycle cycle) {
    return cycle == HourCycle::Twelve ? QString::number(onDial(hourOfDay))
                                      : withTwoDigits(hourOfDay);
}

/// From 0 to 23, of an hour as it is shown.
qint64 hourInDay(qint64 hour, bool isPM, HourCycle cycle) {
    if (cycle == HourCycle::TwentyFour)
        return hour;
    return hour % hoursOnDial + (isPM ? hoursOnDial : 0);
}

} // namespace

bool isHour(qint64 number, HourCycle cycle) {
    return cycle == HourCycle::Twelve ? number >= 1 && number <= hoursOnDial
                                      : number >= 0 && number < hoursInDay;
}

bool isMinute(qint64 number) {
    return number >= 0 && number < minutesInHour;
}

TimeTexts loadedTime(Instant date, const TimeZone& zone, HourCycle cycle) {
    const std::chrono::hh_mm_ss time(civilTime(date, zone).timeOfDay);
    const auto hour = time.hours().count();
    return {hourText(hour, cycle), withTwoDigits(time.minutes().count()), hour >= hoursOnDial};
}

std::optional<Instant>
savedTime(const TimeTexts& texts, Instant date, const TimeZone& zone, HourCycle cycle) {
    const auto hour = parsedNumber(withAsciiDigits(texts.hourText));
    const auto minute = parsedNumber(withAsciiDigits(texts.minuteText));
    if (!hour || !isHour(*hour, cycle) || !minute || !isMinute(*minute))
        return std::nullopt;
    const std::chrono::hours hourOfDay(hourInDay(*hour, texts.isPM, cycle));
    const CivilTime time{civilDay(date, zone), hourOfDay + std::chrono::minutes(*minute)};
    return instantAt(time, zone, date);
}

TimeTexts withTypedTime(const TypedTime& time, const TimeTexts& texts, HourCycle cycle) {
    const bool keepsHalf = !time.hasPeriod && isHour(time.hour, HourCycle::Twelve);
    const auto hour =
        keepsHalf ? hourInDay(time.hour, texts.isPM, cycle) : static_cast<qint64>(time.hour);
    return {
        hourText(hour, cycle),
        time.minute ? withTwoDigits(*time.minute) : texts.minuteText,
        hour >= hoursOnDial};
}

Instant withTimeOf(Instant now, Instant date, const TimeZone& zone) {
    const auto day = civilDay(date, zone);
    const auto shown = civilTime(startOfMinute(now, zone), zone);
    // An hour that occurs twice today is the one that it is now.
    return instantAt({day, shown.timeOfDay}, zone, day == shown.day ? now : date);
}

QString steppedHour(QStringView text, qint64 step, HourCycle cycle) {
    const bool isTwelve = cycle == HourCycle::Twelve;
    const auto hour = parsedNumber(text).value_or(isTwelve ? hoursOnDial : 0);
    return hourText(steppedAround(hour, step, isTwelve ? hoursOnDial : hoursInDay), cycle);
}

QString steppedMinute(QStringView text, qint64 step) {
    const auto minute = parsedNumber(text).value_or(0);
    return withTwoDigits(steppedAround(minute, step, minutesInHour));
}

} // namespace quorvane
