// SPDX-License-Identifier: MIT
#include "TimeZoneAliases.h"

#include <time/IcuTimeZone.h>
#include <time/ZoneNames.h>
#include <timezones/ZoneSearch.h>

#include <cmath>
#include <unordered_set>

namespace quorvane {

namespace {

bool isSpaceOrTab(QChar character) {
    return character == u' ' || character == u'\t';
}

/// Clocks change on whole minutes only, so a zone has the same abbreviation at the start of the
/// minute as at the instant. Asking for the start lets all keystrokes within a minute use the
/// offset that DatabaseTimeZone computed for the first of them.
Instant startOfMinute(Instant instant) {
    constexpr double minute = 60;
    return {std::floor(instant.secondsSince1970 / minute) * minute};
}

QString lowerCase(const std::optional<QString>& name) {
    return name.value_or(QString()).toLower();
}

} // namespace

QString normalisedQuery(QStringView query) {
    while (!query.isEmpty() && isSpaceOrTab(query.front()))
        query = query.sliced(1);
    while (!query.isEmpty() && isSpaceOrTab(query.back()))
        query.chop(1);
    return query.toString().toLower();
}

ZoneSearch::ZoneSearch(TimeZoneCatalogue catalogue, UserLocale locale)
    : m_catalogue(std::move(catalogue)),
      m_locale(std::move(locale)) {
}

std::vector<TimeZone> ZoneSearch::filtered(const QString& query, Instant now) const {
    return found(query, now, [](const TimeZone&) { return true; });
}

std::vector<TimeZone>
ZoneSearch::filteredStarred(const QString& query, Instant now, const QStringList& starred) const {
    const std::unordered_set<QString> identifiers(starred.begin(), starred.end());
    return found(query, now, [&identifiers](const TimeZone& zone) {
        return identifiers.contains(zone.identifier());
    });
}

std::vector<TimeZone>
ZoneSearch::found(const QString& query, Instant now, const Candidate& isCandidate) const {
    const auto text = normalisedQuery(query);
    const auto aliased = TimeZoneAliases::identifiersMatching(text);
    const ZoneNames names(startOfMinute(now), m_locale);
    const auto matches = [&](std::size_t index) {
        const auto& [zone, searchText] = m_catalogue.entries()[index];
        return text.isEmpty() || aliased.contains(zone.identifier()) || searchText.contains(text) ||
               lowerCase(names.abbreviation(*namesOf(index).zone)).contains(text) ||
               namesOf(index).genericName.contains(text);
    };
    std::vector<TimeZone> zones;
    for (std::size_t index = 0; index < m_catalogue.entries().size(); ++index) {
        const auto& zone = m_catalogue.entries()[index].zone;
        if (isCandidate(zone) && matches(index))
            zones.push_back(zone);
    }
    return zones;
}

const ZoneSearch::EntryNames& ZoneSearch::namesOf(std::size_t index) const {
    if (m_entryNames.empty()) {
        const ZoneNames names(m_catalogue.instant(), m_locale);
        for (const auto& [zone, searchText] : m_catalogue.entries())
            m_entryNames.push_back({icuTimeZone(zone), lowerCase(names.genericName(zone))});
    }
    return m_entryNames[index];
}

} // namespace quorvane
