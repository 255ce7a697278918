// SPDX-License-Identifier: MIT
#pragma once

#include <entry/EntryDependencies.h>
#include <model/DateTimeModel.h>
#include <platform/ServiceState.h>
#include <testing/FakeKeyboardLayout.h>
#include <time/ZoneDatabase.h>

/// What the boards show: one moment of one user in New York, always the same.
namespace quorvane::sample {

inline constexpr Instant now{1795199400};       ///< 2026-11-20T18:30:00Z
inline constexpr Instant later{1795204800};     ///< the same day, 20:00:00Z
inline constexpr Instant daysLater{1795550400}; ///< 2026-11-24T20:00:00Z

[[nodiscard]] const ZoneDatabase& zones();
[[nodiscard]] const Clock& clock();
[[nodiscard]] const CurrentZone& currentZone();
[[nodiscard]] UserLocale locale();

/// A keyboard that knows no key but the default shortcut's, and never changes.
[[nodiscard]] FakeKeyboardLayout keyboard();

[[nodiscard]] EntryDependencies entryDependencies();

/// The identifiers of all zones that lists offer, in their order.
[[nodiscard]] QStringList everyZone();

/// Identifiers that name no zone are left out.
void selectZones(DateTimeModel& model, const QStringList& identifiers);

/// What a desktop that is not whole says of its services.
[[nodiscard]] std::vector<ServiceState> serviceStates();

/// From now to `end`, in four zones, a line each.
void composeRange(DateTimeModel& model, Instant end);

} // namespace quorvane::sample
