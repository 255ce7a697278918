// SPDX-License-Identifier: MIT
#pragma once

#include "BoardPicture.h"
#include "BoardSettings.h"

namespace quorvane {

/// The panel in four states.
[[nodiscard]] QImage panelBoard(const BoardSetting& setting);

/// The panel where it has most to show: output in many zones, patterns of the user's own.
[[nodiscard]] QImage outputBoard(const BoardSetting& setting);

/// Whatever the panel opens.
[[nodiscard]] QImage popoversBoard(const BoardSetting& setting);

/// Dates and times while they are typed, taken and refused, and the entry of 24 hours.
[[nodiscard]] QImage entryBoard(const BoardSetting& setting);

} // namespace quorvane
