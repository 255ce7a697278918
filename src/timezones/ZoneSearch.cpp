// SPDX-License-Identifier: MIT
#include "CountryNames.h"
#include "FoldedText.h"
#include "TimeZoneAliases.h"

#include <time/IcuTimeZone.h>
#include <time/ZoneNames.h>
#include <timezones/ZoneSearch.h>
#include <timezones/ZoneTexts.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_set>

namespace quorvane {

using namespace Qt::StringLiterals;

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

// Between names that are searched as one text; no query holds it.
constexpr QChar separator(0x1f);

/// Whether the offset that a row shows contains the query. There are some forty offsets in 420
/// zones.
class OffsetMatch {
public:
    OffsetMatch(QString foldedQuery, Instant now) : m_query(std::move(foldedQuery)), m_now(now) {}

    [[nodiscard]] bool holdsFor(const TimeZone& zone) {
        const auto seconds = zone.secondsFromGMT(m_now);
        const auto [known, isNew] = m_known.try_emplace(seconds, false);
        if (isNew)
            known->second = offsetText(seconds).toLower().contains(m_query);
        return known->second;
    }

private:
    QString m_query;
    Instant m_now;
    std::map<int, bool> m_known;
};

/// The first of the names that contains the folded query.
QString nameContaining(const QString& foldedQuery, const QStringList& names) {
    const auto found = std::ranges::find_if(
        names, [&](const QString& name) { return foldedText(name).contains(foldedQuery); });
    return found == names.end() ? QString() : *found;
}

/// "Calcutta" of "Asia/Calcutta"; all of "US/Eastern" if the query is in its first part.
QString shownOldName(const QString& foldedQuery, const QString& oldName) {
    const auto city = cityName(oldName);
    return foldedText(city).contains(foldedQuery) ? city : QString(oldName).replace(u'_', u' ');
}

QString lowerCase(const std::optional<QString>& name) {
    return name.value_or(QString()).toLower();
}

auto isOneOf(const QStringList& starred) {
    return [identifiers =
                std::unordered_set<QString>(starred.begin(), starred.end())](const TimeZone& zone) {
        return identifiers.contains(zone.identifier());
    };
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
    return found(query, now, Extent::First, [](const TimeZone&) { return true; });
}

std::vector<TimeZone>
ZoneSearch::filteredStarred(const QString& query, Instant now, const QStringList& starred) const {
    return found(query, now, Extent::First, isOneOf(starred));
}

std::vector<TimeZone> ZoneSearch::results(const QString& query, Instant now) const {
    return found(query, now, Extent::Further, [](const TimeZone&) { return true; });
}

std::vector<TimeZone>
ZoneSearch::starredResults(const QString& query, Instant now, const QStringList& starred) const {
    return found(query, now, Extent::Further, isOneOf(starred));
}

std::vector<TimeZone> ZoneSearch::found(
    const QString& query, Instant now, Extent extent, const Candidate& isCandidate) const {
    const auto text = normalisedQuery(query);
    const auto aliased = TimeZoneAliases::identifiersMatching(text);
    const ZoneNames names(startOfMinute(now), m_locale);
    const auto matches = [&](std::size_t index) {
        const auto& entry = m_catalogue.entries()[index];
        return text.isEmpty() || aliased.contains(entry.zone.identifier()) ||
               entry.searchText.contains(text) ||
               lowerCase(names.abbreviation(*namesOf(index).zone)).contains(text) ||
               namesOf(index).genericName.contains(text);
    };
    const auto folded = foldedText(text);
    const bool hasFurther = extent == Extent::Further && !text.contains(u'_') && !folded.isEmpty();
    OffsetMatch offset(folded, now);
    std::vector<TimeZone> zones;
    std::vector<TimeZone> further;
    for (std::size_t index = 0; index < m_catalogue.entries().size(); ++index) {
        const auto& zone = m_catalogue.entries()[index].zone;
        if (!isCandidate(zone))
            continue;
        if (matches(index))
            zones.push_back(zone);
        else if (
            hasFurther && (offset.holdsFor(zone) || namesOf(index).furtherNames.contains(folded)))
            further.push_back(zone);
    }
    zones.insert(zones.end(), further.begin(), further.end());
    return zones;
}

QString ZoneSearch::reason(const QString& query, Instant now, const TimeZone& zone) const {
    const auto text = normalisedQuery(query);
    const auto folded = foldedText(text);
    const auto& identifier = zone.identifier();
    const QStringList shown{
        placeName(identifier),
        regionName(identifier).value_or(QString()),
        zoneAbbreviation(zone, now, m_locale).value_or(QString()),
        offsetString(zone, now)};
    if (text.isEmpty() || text.contains(u'/') || !nameContaining(folded, shown).isEmpty())
        return {};
    if (auto alias = TimeZoneAliases::nameMatching(text, identifier))
        return *alias;
    // Of "America/Indiana/Knox" a row shows the ends.
    const QStringList pieces = QString(identifier).replace(u'_', u' ').split(u'/');
    const auto inner = nameContaining(folded, pieces);
    return inner.isEmpty() ? furtherReason(folded, zone) : inner;
}

QString ZoneSearch::furtherReason(const QString& query, const TimeZone& zone) const {
    const auto generic =
        ZoneNames(m_catalogue.instant(), m_locale).genericName(zone).value_or(QString());
    if (foldedText(generic).contains(query))
        return generic;
    const auto entry =
        std::ranges::find(m_catalogue.entries(), zone, &TimeZoneCatalogue::Entry::zone);
    if (entry == m_catalogue.entries().end())
        return {};
    if (auto country = nameContaining(query, countryNames(entry->countries, m_locale));
        !country.isEmpty())
        return country;
    const auto oldName =
        nameContaining(query, QStringList(entry->oldNames).replaceInStrings(u"_"_s, u" "_s));
    return oldName.isEmpty() ? QString() : shownOldName(query, oldName);
}

QString
ZoneSearch::furtherNames(const TimeZoneCatalogue::Entry& entry, const QString& genericName) const {
    auto names = countryNames(entry.countries, m_locale);
    names << genericName << entry.searchText;
    for (const auto& oldName : entry.oldNames)
        names << QString(oldName).replace(u'_', u' ');
    return foldedText(names.join(separator));
}

const ZoneSearch::EntryNames& ZoneSearch::namesOf(std::size_t index) const {
    if (m_entryNames.empty()) {
        const ZoneNames names(m_catalogue.instant(), m_locale);
        for (const auto& entry : m_catalogue.entries()) {
            auto genericName = lowerCase(names.genericName(entry.zone));
            auto further = furtherNames(entry, genericName);
            m_entryNames.push_back(
                {icuTimeZone(entry.zone), std::move(genericName), std::move(further)});
        }
    }
    return m_entryNames[index];
}

} // namespace quorvane
