// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>
#include <timezones/TimeZoneCatalogue.h>

#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quorvane {

class ZoneWordIndex;

/// The query without leading and trailing spaces and tabs, in lower case. Line feeds stay: they are
/// part of the query.
[[nodiscard]] QString normalisedQuery(QStringView query);

/// Finds zones of a catalogue by what the user types. A zone is found by an alias, its identifier,
/// its abbreviation or its generic name in the user's locale; case does not matter, nor do spaces
/// and tabs around the query. An empty query finds every zone. What is found keeps the catalogue's
/// order.
///
/// Further results follow these: zones whose offset, country (in the user's language or English) or
/// old name contain the query, or whose names do without accents. A query with "_" has none.
class ZoneSearch {
public:
    ZoneSearch(TimeZoneCatalogue catalogue, UserLocale locale);
    ZoneSearch(ZoneSearch&& other) noexcept;
    ZoneSearch& operator=(ZoneSearch&& other) noexcept;
    ~ZoneSearch();

    [[nodiscard]] const TimeZoneCatalogue& catalogue() const;

    /// Does for one zone what the first query needs, some 0.02 ms; false if it is done for all. A
    /// query does by itself what is lacking: this is for the time in which nobody waits.
    bool prepareNext();

    /// `now` decides which abbreviation a zone has: "PST" finds no zone in July.
    [[nodiscard]] std::vector<TimeZone> filtered(const QString& query, Instant now) const;

    /// The same among the zones with these identifiers.
    [[nodiscard]] std::vector<TimeZone>
    filteredStarred(const QString& query, Instant now, const QStringList& starred) const;

    /// What filtered() gives, then the further results.
    [[nodiscard]] std::vector<TimeZone> results(const QString& query, Instant now) const;

    /// The same among the zones with these identifiers.
    [[nodiscard]] std::vector<TimeZone>
    starredResults(const QString& query, Instant now, const QStringList& starred) const;

    /// By what a result was found, where its place, region, abbreviation and offset do not show it:
    /// "Boston", "India", "Pacific Time". Empty otherwise, and for a zone of no catalogue.
    [[nodiscard]] QString reason(const QString& query, Instant now, const TimeZone& zone) const;

private:
    using Candidate = std::function<bool(const TimeZone& zone)>;

    enum class Extent { First, Further };

    [[nodiscard]] std::vector<TimeZone>
    found(const QString& query, Instant now, Extent extent, const Candidate& isCandidate) const;
    [[nodiscard]] QString furtherReason(const QString& query, std::size_t entry) const;

    /// The number of the catalogue's entry.
    [[nodiscard]] std::optional<std::size_t> entryOf(const TimeZone& zone) const;

    std::unique_ptr<ZoneWordIndex> m_index;
};

} // namespace quorvane
