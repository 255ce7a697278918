// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>
#include <time/TimeZone.h>

#include <QString>
#include <QStringList>

#include <filesystem>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quorvane {

class ZoneIndex;

/// The folder of the system's zone data: TZDIR's, if that is there, else the first of the usual
/// ones.
[[nodiscard]] QString zoneDirectory(const Environment& environment);

/// The zones that the system knows. Neither ICU nor Qt tells whether a text names one: ICU takes
/// what it does not know for GMT, Qt takes the empty text for UTC. The index of the compiled
/// database (tzdata.zi) does, and without it the files.
class ZoneDatabase {
public:
    /// Reads the index in `directory`. Without any data, UTC is the only zone.
    explicit ZoneDatabase(QString directory = QStringLiteral("/usr/share/zoneinfo"));
    ~ZoneDatabase();

    /// Takes new data, if the system's have changed since they were read; false if not. Zones that
    /// have been handed out have the new offsets, too.
    bool refresh();

    [[nodiscard]] const QString& directory() const { return m_directory; }

    /// Whether there is any zone but UTC.
    [[nodiscard]] bool hasData() const;

    /// Whether a zone or a link has exactly this identifier; case matters.
    [[nodiscard]] bool isKnown(const QString& identifier) const;

    /// None for an unknown identifier, and for one without data. A link whose own data file is
    /// missing has those of the zone that it leads to.
    [[nodiscard]] std::optional<TimeZone> zone(const QString& identifier) const;

    /// The name of the file that holds the data of such a zone; empty if there is none.
    [[nodiscard]] QString dataFileOf(const QString& identifier) const;

    /// The zones that the identifiers name, in their order; what names none is dropped. Links are
    /// zones of their own and keep their name.
    [[nodiscard]] std::vector<TimeZone> zones(const QStringList& identifiers) const;

    [[nodiscard]] static TimeZone utc();

    /// The zones of the table by country (zone.tab), in its order, under their present names;
    /// without the table, all zones of the continents and oceans.
    [[nodiscard]] QStringList zonesByCountry() const;

    /// What lists offer: the zones of the table by country, UTC, and the zone furthest west, which
    /// no country has.
    [[nodiscard]] QStringList listedZones() const;

    /// The listed zone to which the database's links lead from an identifier that is not listed
    /// itself: "America/New_York" for "US/Eastern". The identifier, where there is none.
    [[nodiscard]] QString listedName(const QString& identifier) const;

    /// The same for each, without those that would double another.
    [[nodiscard]] QStringList listedNames(const QStringList& identifiers) const;

private:
    /// When the files were last written that change with the data.
    using Stamp = std::vector<std::pair<std::filesystem::path, std::filesystem::file_time_type>>;

    [[nodiscard]] Stamp stamp() const;
    [[nodiscard]] bool isListed(QByteArrayView name) const;
    [[nodiscard]] std::optional<ZoneRules> rulesOf(const QString& identifier) const;

    QString m_directory;
    Stamp m_stamp;
    std::unique_ptr<ZoneIndex> m_index;

    /// The zones asked for so far: without this, a list of all of them would read 420 files at each
    /// opening.
    mutable std::unordered_map<QString, std::shared_ptr<ZoneRules>> m_opened;
};

} // namespace quorvane
