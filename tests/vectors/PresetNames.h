// SPDX-License-Identifier: MIT
#pragma once

#include "VectorRow.h"

#include <composition/DateFormatPreset.h>

namespace quorvane {

/// The name that vector files use for a preset, which is not its label.
[[nodiscard]] QString presetName(DateFormatPreset preset);

/// The preset that a row names in `field`.
[[nodiscard]] DateFormatPreset presetIn(const VectorRow& row, const char* field);

} // namespace quorvane
