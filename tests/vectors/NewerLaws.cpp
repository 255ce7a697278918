// SPDX-License-Identifier: MIT
#include "NewerLaws.h"

#include "ZoneOracle.h"

#include <time/ZoneNames.h>

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <optional>
#include <vector>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct NewerLaw {
    QLatin1StringView identifier;
    QLatin1StringView release; ///< of the time zone database, which brought the law
};

constexpr std::array newerLaws{NewerLaw{"America/Ojinaga"_L1, "2022f"_L1}};

struct Meaning {
    QLatin1StringView name;
    int hours;
};

constexpr std::array meanings{
    Meaning{"MST"_L1, -7}, Meaning{"MDT"_L1, -6}, Meaning{"CST"_L1, -6}, Meaning{"CDT"_L1, -5}};

std::optional<int> secondsMeantBy(const QString& abbreviation) {
    const auto row = std::ranges::find(meanings, abbreviation, &Meaning::name);
    if (row != meanings.end())
        return row->hours * 3600;
    static const QRegularExpression offset(u"^(?:GMT|UTC)([+-])([0-9]{1,2})$"_s);
    const auto match = offset.match(QString(abbreviation).replace(u'\u2212', u'-'));
    return match.hasMatch() ? std::optional((match.captured(1) + match.captured(2)).toInt() * 3600)
                            : std::nullopt;
}

std::optional<int> oracleSeconds(const QString& identifier, Instant now) {
    static std::map<double, std::vector<OracleOffset>> asked;
    const auto [at, isNew] = asked.try_emplace(now.secondsSince1970);
    if (isNew)
        at->second = oracleOffsetsAt({static_cast<qint64>(now.secondsSince1970)});
    const auto& offsets = at->second;
    const auto found = std::ranges::find(offsets, identifier, &OracleOffset::identifier);
    return found == offsets.end() ? std::nullopt : std::optional(found->secondsFromGMT);
}

} // namespace

QString placeByOracle(const TimeZone& zone, Instant now) {
    constexpr QChar minus(0x2212);
    const auto hours = oracleSeconds(zone.identifier(), now).value_or(0) / 3600;
    return (hours < 0 ? u"UTC"_s + minus : u"UTC+"_s) + QString::number(std::abs(hours));
}

bool hasNewerLaw(const QString& identifier) {
    return std::ranges::find(newerLaws, identifier, &NewerLaw::identifier) != newerLaws.end();
}

QString confirmedAbbreviation(const TimeZone& zone, Instant now, const UserLocale& locale) {
    const auto name = zoneAbbreviation(zone, now, locale).value_or(QString());
    const auto seconds = oracleSeconds(zone.identifier(), now);
    if (!seconds)
        return u"no /usr/bin/python3 with zoneinfo"_s;
    return secondsMeantBy(name) == seconds ? name : name + u" is not %1 s"_s.arg(*seconds);
}

} // namespace quorvane
