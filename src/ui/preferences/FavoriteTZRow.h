// SPDX-License-Identifier: MIT
#pragma once

#include <picker/TimeZoneRow.h>

#include <QCoreApplication>

namespace quorvane {

/// What the list of favourites shows of one zone at one instant.
class FavoriteTZRow {
    Q_DECLARE_TR_FUNCTIONS(FavoriteTZRow)

public:
    explicit FavoriteTZRow(TimeZoneRow row) : m_row(std::move(row)) {}

    /// "New York" of "America/New_York".
    [[nodiscard]] QString label() const { return m_row.place(); }

    /// "UTC-5".
    [[nodiscard]] QString offsetString() const { return m_row.offsetString(); }

    /// None where the locale has no name for it, or one that begins with "GMT": that says what the
    /// offset says.
    [[nodiscard]] std::optional<QString> abbreviation() const;

    /// Offset and abbreviation, as one reads them out.
    [[nodiscard]] QString description() const;

private:
    TimeZoneRow m_row;
};

} // namespace quorvane
