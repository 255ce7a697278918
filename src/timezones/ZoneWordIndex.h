// SPDX-License-Identifier: MIT
#pragma once

#include "CountryNames.h"
#include "ZoneWords.h"

#include <time/ZoneNames.h>
#include <timezones/TimeZoneCatalogue.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace quorvane {

/// The words by which a search finds the zones of a catalogue. To make them takes fifty times as
/// long as a search in them, so they are made once: zone by zone while nobody waits for them, and
/// those still lacking when a search asks for them.
class ZoneWordIndex {
public:
    ZoneWordIndex(TimeZoneCatalogue catalogue, UserLocale locale);

    [[nodiscard]] const TimeZoneCatalogue& catalogue() const { return m_catalogue; }

    /// Makes the words of one more zone; false if none lacked them.
    bool makeNext();

    /// Of the catalogue's entry of that number.
    [[nodiscard]] const ZoneWords& words(std::size_t entry);

    /// Its abbreviation at an instant in lower case; empty for none.
    [[nodiscard]] const QString& abbreviation(std::size_t entry, Instant now);

private:
    /// The abbreviations of one minute, as far as they were asked for.
    struct Minute {
        Minute(Instant minute, const UserLocale& locale, std::size_t zones)
            : start(minute),
              names(minute, locale),
              known(zones) {}

        Instant start;
        ZoneNames names;
        std::vector<std::optional<QString>> known;
    };

    [[nodiscard]] ZoneWords wordsOf(const TimeZoneCatalogue::Entry& entry);
    [[nodiscard]] QString
    furtherNames(const TimeZoneCatalogue::Entry& entry, const ZoneWords& words) const;

    TimeZoneCatalogue m_catalogue;
    UserLocale m_locale;
    CountryNames m_countries;
    std::optional<ZoneNames> m_names; ///< only while words are being made
    std::vector<ZoneWords> m_words;   ///< of the entries so far
    std::optional<Minute> m_minute;   ///< the last that was asked about
};

} // namespace quorvane
