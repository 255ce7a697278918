// SPDX-License-Identifier: MIT
#include "FoldedText.h"
#include "TimeZoneAliases.h"
#include "ZoneWordIndex.h"

#include <timezones/ZoneSearch.h>
#include <timezones/ZoneTexts.h>

#include <algorithm>
#include <map>
#include <unordered_set>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

bool isSpaceOrTab(QChar character) {
    return character == u' ' || character == u'\t';
}

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
    : m_index(std::make_unique<ZoneWordIndex>(std::move(catalogue), std::move(locale))) {
}

ZoneSearch::ZoneSearch(ZoneSearch&& other) noexcept = default;

ZoneSearch& ZoneSearch::operator=(ZoneSearch&& other) noexcept = default;

ZoneSearch::~ZoneSearch() = default;

const TimeZoneCatalogue& ZoneSearch::catalogue() const {
    return m_index->catalogue();
}

bool ZoneSearch::prepareNext() {
    return m_index->makeNext();
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
    const auto& entries = catalogue().entries();
    const auto matches = [&](std::size_t index) {
        const auto& entry = entries[index];
        return text.isEmpty() || aliased.contains(entry.zone.identifier()) ||
               entry.searchText.contains(text) ||
               m_index->abbreviation(index, now).contains(text) ||
               m_index->words(index).lowerGenericName.contains(text);
    };
    const auto folded = foldedText(text);
    const bool hasFurther = extent == Extent::Further && !text.contains(u'_') && !folded.isEmpty();
    OffsetMatch offset(folded, now);
    std::vector<TimeZone> zones;
    std::vector<TimeZone> further;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const auto& zone = entries[index].zone;
        if (!isCandidate(zone))
            continue;
        if (matches(index))
            zones.push_back(zone);
        else if (
            hasFurther &&
            (offset.holdsFor(zone) || m_index->words(index).furtherNames.contains(folded)))
            further.push_back(zone);
    }
    zones.insert(zones.end(), further.begin(), further.end());
    return zones;
}

QString ZoneSearch::reason(const QString& query, Instant now, const TimeZone& zone) const {
    const auto text = normalisedQuery(query);
    const auto folded = foldedText(text);
    const auto& identifier = zone.identifier();
    const auto entry = entryOf(zone);
    if (!entry || text.isEmpty() || text.contains(u'/'))
        return {};
    const QStringList shown{
        placeName(identifier),
        regionName(identifier).value_or(QString()),
        m_index->abbreviation(*entry, now),
        offsetString(zone, now)};
    if (!nameContaining(folded, shown).isEmpty())
        return {};
    if (auto alias = TimeZoneAliases::nameMatching(text, identifier))
        return *alias;
    // Of "America/Indiana/Knox" a row shows the ends.
    const QStringList pieces = QString(identifier).replace(u'_', u' ').split(u'/');
    const auto inner = nameContaining(folded, pieces);
    return inner.isEmpty() ? furtherReason(folded, *entry) : inner;
}

QString ZoneSearch::furtherReason(const QString& query, std::size_t entry) const {
    const auto& words = m_index->words(entry);
    const auto name = nameContaining(query, QStringList(words.genericName) + words.countries);
    if (!name.isEmpty())
        return name;
    auto oldNames = catalogue().entries()[entry].oldNames;
    const auto oldName = nameContaining(query, oldNames.replaceInStrings(u"_"_s, u" "_s));
    return oldName.isEmpty() ? QString() : shownOldName(query, oldName);
}

std::optional<std::size_t> ZoneSearch::entryOf(const TimeZone& zone) const {
    const auto& entries = catalogue().entries();
    const auto entry = std::ranges::find(entries, zone, &TimeZoneCatalogue::Entry::zone);
    if (entry == entries.end())
        return std::nullopt;
    return static_cast<std::size_t>(entry - entries.begin());
}

} // namespace quorvane
