// SPDX-License-Identifier: MIT
#include <time/ZoneNames.h>
#include <timezones/ZoneTexts.h>

#include <QStringList>

#include <cstdlib>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QStringList pieces(const QString& identifier) {
    return identifier.split(u'/', Qt::SkipEmptyParts);
}

bool isOffset(const QString& abbreviation) {
    return abbreviation.startsWith("GMT+"_L1) || abbreviation.startsWith("GMT-"_L1);
}

} // namespace

QString offsetText(int secondsFromGMT) {
    constexpr int hour = 3600;
    constexpr int minute = 60;
    const int hours = secondsFromGMT / hour;
    const int minutes = std::abs(secondsFromGMT % hour) / minute;
    return minutes == 0 ? QString::asprintf("UTC%+d", hours)
                        : QString::asprintf("UTC%+d:%02d", hours, minutes);
}

QString offsetString(const TimeZone& zone, Instant instant) {
    return offsetText(zone.secondsFromGMT(instant));
}

std::optional<QString> regionName(const QString& identifier) {
    const auto parts = pieces(identifier);
    return parts.size() < 2 ? std::nullopt : std::optional(parts.front());
}

QString cityName(const QString& identifier) {
    const auto parts = pieces(identifier);
    return parts.isEmpty() ? identifier : QString(parts.back()).replace(u'_', u' ');
}

QString zoneLabel(const QString& identifier, const std::optional<QString>& abbreviation) {
    return abbreviation && !isOffset(*abbreviation) ? *abbreviation : cityName(identifier);
}

QString zoneLabel(const TimeZone& zone, Instant instant, const UserLocale& locale) {
    return zoneLabel(zone.identifier(), zoneAbbreviation(zone, instant, locale));
}

} // namespace quorvane
