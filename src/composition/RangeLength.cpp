// SPDX-License-Identifier: MIT
#include <composition/RangeLength.h>
#include <time/CivilTime.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto context = "RangeLength";
constexpr std::int64_t minutesInHour = 60;
constexpr double secondsInMinute = 60;

QString translated(const char* text) {
    return QCoreApplication::translate(context, text);
}

/// `later` is not before `earlier`.
SpanParts spanBetween(Instant earlier, Instant later, const TimeZone& zone) {
    auto days = civilDay(later, zone) - civilDay(earlier, zone);
    const auto moved = [&] {
        return movedToDay(earlier, civilDay(earlier, zone) + days, zone);
    };
    const auto secondsLeft = [&] {
        return later.secondsSince1970 - moved().secondsSince1970;
    };
    if (secondsLeft() < 0)
        days -= std::chrono::days(1);
    const double seconds = std::max(0.0, secondsLeft());
    const auto minutes = static_cast<std::int64_t>(std::floor(seconds / secondsInMinute));
    return {days.count(), minutes / minutesInHour, minutes % minutesInHour};
}

} // namespace

RangeLength RangeLength::between(Instant start, Instant end, const TimeZone& zone) {
    const auto from = startOfMinute(start, zone);
    const auto to = startOfMinute(end, zone);
    const bool isNegative = to.secondsSince1970 < from.secondsSince1970;
    return {
        isNegative ? spanBetween(to, from, zone) : spanBetween(from, to, zone), isNegative, false};
}

RangeLength RangeLength::daysBetween(Instant start, Instant end, const TimeZone& zone) {
    const auto days = (civilDay(end, zone) - civilDay(start, zone)).count();
    return {{std::abs(days), 0, 0}, days < 0, true};
}

QString RangeLength::text(const UserLocale& locale) const {
    QStringList parts;
    const auto add = [&](const char* pattern, std::int64_t number) {
        parts.append(translated(pattern).arg(wholeNumberText(number, locale)));
    };
    if (span.days != 0 || countsDays)
        add(QT_TRANSLATE_NOOP("RangeLength", "%1 d"), span.days);
    if (span.hours != 0)
        add(QT_TRANSLATE_NOOP("RangeLength", "%1 h"), span.hours);
    if (span.minutes != 0 || parts.isEmpty())
        add(QT_TRANSLATE_NOOP("RangeLength", "%1 min"), span.minutes);
    const auto length = parts.join(u' ');
    return isNegative ? u"\u2212"_s + length : length;
}

QString RangeLength::words(const UserLocale& locale) const {
    if (countsDays && span.days == 0)
        return translated(QT_TRANSLATE_NOOP("RangeLength", "Begins and ends on the same day"));
    const auto* sentence = isNegative ? QT_TRANSLATE_NOOP("RangeLength", "Ends %1 before it begins")
                                      : QT_TRANSLATE_NOOP("RangeLength", "Lasts %1");
    return translated(sentence).arg(spanWords(span, locale));
}

} // namespace quorvane
