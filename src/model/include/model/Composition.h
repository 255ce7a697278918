// SPDX-License-Identifier: MIT
#pragma once

#include <composition/DateFormatPreset.h>
#include <composition/MultiZoneLayout.h>
#include <time/Instant.h>
#include <time/TimeZone.h>

#include <QString>

#include <vector>

namespace quorvane {

/// What the user composes. It ends with the run, but for what the user wants remembered (see
/// RememberedChoices.h).
struct Composition {
    Instant startDate;
    Instant endDate;             ///< may be before the start
    bool hasEnteredDate = false; ///< either date is the user's own
    bool isRange = false;
    bool includeDate = true;
    bool includeTime = true;
    std::vector<TimeZone> selectedTimeZones; ///< in the order of selection
    DateFormatPreset formatPreset = DateFormatPreset::LongForm;
    QString customFormatString = QStringLiteral("yyyy-MM-dd HH:mm zzz");
    MultiZoneLayout multiZoneLayout = MultiZoneLayout::Inline;

    /// That of a new run: an hour from `now`, in `zone`.
    [[nodiscard]] static Composition startingAt(Instant now, TimeZone zone);

    /// Moves the start to `now` and keeps the distance to the end, which is that of the minutes
    /// that the clocks of `zone` show: the entry controls drop the seconds of one date and not of
    /// the other. Neither date is the user's then.
    void moveTo(Instant now, const TimeZone& zone);
};

} // namespace quorvane
