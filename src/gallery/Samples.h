// SPDX-License-Identifier: MIT
#pragma once

#include <entry/EntrySurroundings.h>
#include <foundation/ZoneDatabase.h>

/// What the boards show: one moment of one user, always the same.
namespace quorvane::sample {

inline constexpr Instant now{1795199400};   ///< 2026-11-20T18:30:00Z
inline constexpr Instant later{1795550400}; ///< 2026-11-24T20:00:00Z

[[nodiscard]] const ZoneDatabase& zones();
[[nodiscard]] const Clock& clock();
[[nodiscard]] UserLocale locale();
[[nodiscard]] EntrySurroundings entrySurroundings();

} // namespace quorvane::sample
