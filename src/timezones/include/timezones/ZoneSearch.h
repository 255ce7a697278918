// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>
#include <timezones/TimeZoneCatalogue.h>

#include <QString>
#include <QStringList>
#include <unicode/timezone.h>

#include <functional>
#include <memory>
#include <vector>

namespace quorvane {

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

    [[nodiscard]] const TimeZoneCatalogue& catalogue() const { return m_catalogue; }

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
    /// "Boston", "India", "Pacific Time". Empty otherwise.
    [[nodiscard]] QString reason(const QString& query, Instant now, const TimeZone& zone) const;

private:
    using Candidate = std::function<bool(const TimeZone& zone)>;

    enum class Extent { First, Further };

    /// What is needed for the names of an entry of the catalogue.
    struct EntryNames {
        std::unique_ptr<icu::TimeZone> zone; ///< gives the abbreviation, which depends on "now"
        QString genericName;                 ///< in lower case; empty for none
        QString furtherNames;                ///< all of them, folded and separated
    };

    [[nodiscard]] std::vector<TimeZone>
    found(const QString& query, Instant now, Extent extent, const Candidate& isCandidate) const;
    [[nodiscard]] QString
    furtherNames(const TimeZoneCatalogue::Entry& entry, const QString& genericName) const;
    [[nodiscard]] QString furtherReason(const QString& query, const TimeZone& zone) const;
    [[nodiscard]] const EntryNames& namesOf(std::size_t index) const;

    TimeZoneCatalogue m_catalogue;
    UserLocale m_locale;

    /// One for each entry of the catalogue, made at the first query that needs them: making them is
    /// nine tenths of the cost of a search, and most lists are opened and closed without one.
    mutable std::vector<EntryNames> m_entryNames;
};

} // namespace quorvane
