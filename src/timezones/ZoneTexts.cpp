// SPDX-License-Identifier: MIT
#include <time/ZoneNames.h>
#include <timezones/ZoneTexts.h>

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar minus(0x2212);
constexpr qsizetype signPlace = 3; ///< in "GMT+5"

QStringList pieces(const QString& identifier) {
    return identifier.split(u'/', Qt::SkipEmptyParts);
}

bool isOffset(const QString& abbreviation) {
    return abbreviation.startsWith("GMT+"_L1) || abbreviation.startsWith("GMT-"_L1);
}

/// Equal labels with the places of their zones.
QStringList toldApart(const QStringList& labels, const std::vector<TimeZone>& zones) {
    QStringList result = labels;
    for (qsizetype index = 0; index < labels.size(); ++index) {
        const auto place = placeName(zones[static_cast<std::size_t>(index)].identifier());
        if (labels.count(labels[index]) > 1 && place != labels[index])
            result[index] = u"%1 %2"_s.arg(labels[index], place);
    }
    return result;
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

QString placeName(const QString& identifier) {
    const auto city = cityName(identifier);
    if (!isOffset(city))
        return city;
    const auto hours = QStringView(city).sliced(signPlace + 1);
    const bool isNumber =
        std::ranges::all_of(hours, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    if (!isNumber || hours.toInt() == 0)
        return city;
    // The sign of such a name is the opposite of the usual one.
    const auto sign = city[signPlace] == u'+' ? minus : QChar(u'+');
    return "UTC"_L1 + sign + hours.toString();
}

QString placeAndOffset(const TimeZone& zone, Instant instant) {
    const auto place = placeName(zone.identifier());
    const auto offset = offsetString(zone, instant).replace(u'-', minus);
    if (place.startsWith("UTC"_L1))
        return place;
    //: A place and its offset: "Toronto, UTC−5"
    return QCoreApplication::translate("ZoneTexts", "%1, %2").arg(place, offset);
}

QString zoneLabel(const TimeZone& zone, Instant instant, const UserLocale& locale) {
    return zoneLabels({zone}, instant, locale).front();
}

QStringList
zoneLabels(const std::vector<TimeZone>& zones, Instant instant, const UserLocale& locale) {
    const ZoneNames names(instant, locale);
    QStringList labels;
    for (const auto& zone : zones) {
        const auto name = names.shortName(zone);
        const auto& identifier = zone.identifier();
        labels.append(name ? zoneLabel(identifier, name) : placeName(identifier));
    }
    return toldApart(labels, zones);
}

} // namespace quorvane
