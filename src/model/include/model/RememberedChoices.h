// SPDX-License-Identifier: MIT
#pragma once

#include <model/Composition.h>
#include <settings/DefaultsStore.h>
#include <time/ZoneDatabase.h>

/// What the user composes, but for the dates, as it is kept from one run to the next.
namespace quorvane::rememberedchoices {

/// Stores all of it as one change.
void store(const Composition& composition, DefaultsStore& defaults);

[[nodiscard]] QStringList zoneIdentifiers(const Composition& composition);

/// Puts in place what is stored. What is not, and what cannot be one, stays as it is; the latter
/// with a line each on standard error.
void recall(Composition& composition, const DefaultsStore& defaults, const ZoneDatabase& zones);

} // namespace quorvane::rememberedchoices
