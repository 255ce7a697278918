// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>

#include <unicode/timezone.h>

#include <memory>

namespace quorvane {

/// The zone for ICU's formatters. The data built into ICU age with its package, those of the system
/// are kept up to date: offsets are the system's, names are ICU's. Holds for every instant; one
/// text field, the short zone code ("V"), is not to be had from it.
[[nodiscard]] std::unique_ptr<icu::TimeZone> icuTimeZone(const TimeZone& zone);

/// The zone for what is written about one instant: ICU's own where that agrees with the system's
/// around the instant, so that no field is lacking, else as above.
[[nodiscard]] std::unique_ptr<icu::TimeZone> icuTimeZoneAt(const TimeZone& zone, Instant instant);

/// ICU's own zone, with its own offsets: for what needs no offset. None for a zone that is newer
/// than ICU's data.
[[nodiscard]] std::unique_ptr<icu::TimeZone> icuOwnTimeZone(const TimeZone& zone);

/// Whole milliseconds, which is what ICU computes calendar fields from: the greatest that is not
/// after the instant.
[[nodiscard]] UDate icuDate(Instant instant);

} // namespace quorvane
