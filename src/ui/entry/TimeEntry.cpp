// SPDX-License-Identifier: MIT
#include "TimeEntry.h"

#include "NumberText.h"

#include <time/CivilTime.h>

namespace quorvane {

namespace {

constexpr qint64 hoursOnDial = 12;
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

} // namespace

TimeTexts loadedTime(Instant date, const TimeZone& zone) {
    const std::chrono::hh_mm_ss time(civilTime(date, zone).timeOfDay);
    const auto hour = time.hours().count();
    return {
        QString::number(onDial(hour)), withTwoDigits(time.minutes().count()), hour >= hoursOnDial};
}

std::optional<Instant> savedTime(const TimeTexts& texts, Instant date, const TimeZone& zone) {
    const auto hour = parsedNumber(texts.hourText);
    const auto minute = parsedNumber(texts.minuteText);
    if (!hour || *hour < 1 || *hour > hoursOnDial)
        return std::nullopt;
    if (!minute || *minute < 0 || *minute >= minutesInHour)
        return std::nullopt;
    const std::chrono::hours hourOfDay(*hour % hoursOnDial + (texts.isPM ? hoursOnDial : 0));
    const CivilTime time{civilDay(date, zone), hourOfDay + std::chrono::minutes(*minute)};
    return instantAt(time, zone, date);
}

Instant withTimeOf(Instant now, Instant date, const TimeZone& zone) {
    const auto day = civilDay(date, zone);
    const auto shown = civilTime(startOfMinute(now, zone), zone);
    // An hour that occurs twice today is the one that it is now.
    return instantAt({day, shown.timeOfDay}, zone, day == shown.day ? now : date);
}

QString steppedHour(QStringView text, qint64 step) {
    const auto hour = parsedNumber(text).value_or(hoursOnDial);
    return QString::number(onDial(steppedAround(hour, step, hoursOnDial)));
}

QString steppedMinute(QStringView text, qint64 step) {
    const auto minute = parsedNumber(text).value_or(0);
    return withTwoDigits(steppedAround(minute, step, minutesInHour));
}

} // namespace quorvane
