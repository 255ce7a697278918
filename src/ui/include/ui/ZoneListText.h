// SPDX-License-Identifier: MIT
#pragma once

#include <foundation/TimeZone.h>
#include <foundation/ZoneDatabase.h>

#include <QString>

#include <vector>

namespace quorvane {

/// The identifiers, separated by commas.
[[nodiscard]] QString zoneListText(const std::vector<TimeZone>& zones);

/// The zones that the text names, each once, in its order; what names none is left out.
[[nodiscard]] std::vector<TimeZone>
zonesFromText(const QString& text, const ZoneDatabase& database);

} // namespace quorvane
