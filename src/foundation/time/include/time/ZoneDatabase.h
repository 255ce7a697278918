// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <unordered_map>
#include <vector>

namespace quorvane {

/// The zones that the system knows. Neither ICU nor Qt tells whether a text names one: ICU takes
/// what it does not know for GMT, Qt takes the empty text for UTC. The index of the compiled
/// database (tzdata.zi) does.
class ZoneDatabase {
public:
    /// Reads the index in `directory`. Without one, UTC is the only zone.
    explicit ZoneDatabase(QString directory = QStringLiteral("/usr/share/zoneinfo"));

    [[nodiscard]] const QString& directory() const { return m_directory; }

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

    /// The zones of the table by country (zone.tab), in its order, under their present names. Read
    /// anew at each call; empty without the table.
    [[nodiscard]] QStringList zonesByCountry() const;

private:
    struct IndexEntry {
        QByteArrayView name;
        QByteArrayView target; ///< what a link leads to; empty for a zone
    };

    [[nodiscard]] const IndexEntry* entry(QByteArrayView name) const;
    [[nodiscard]] QTimeZone dataOf(const QString& identifier) const;

    QString m_directory;
    QByteArray m_index;                ///< the text that m_entries points into
    std::vector<IndexEntry> m_entries; ///< sorted by name

    /// The zones asked for so far, as old as the index above: without this, a list of all of them
    /// would read 420 files at each opening.
    mutable std::unordered_map<QString, QTimeZone> m_opened;
};

} // namespace quorvane
