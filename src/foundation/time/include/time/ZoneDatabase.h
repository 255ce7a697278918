// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <time/TimeZone.h>
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

    /// None for an unknown identifier, and for one whose data file is missing.
    [[nodiscard]] std::optional<TimeZone> zone(const QString& identifier) const;

    [[nodiscard]] static TimeZone utc();

    /// The zones of the table by country (zone.tab), in its order, under their present names. Read
    /// anew at each call; empty without the table.
    [[nodiscard]] QStringList zonesByCountry() const;

private:
    QString m_directory;
    QByteArray m_index;                        ///< the text that m_identifiers points into
    std::vector<QByteArrayView> m_identifiers; ///< sorted

    /// The zones that were asked for: a list of all of them would read 420 files at each opening.
    /// They are as old as the index above.
    mutable std::unordered_map<QString, QTimeZone> m_opened;
};

} // namespace quorvane
