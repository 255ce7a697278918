// SPDX-License-Identifier: MIT
#pragma once

#include "BoardSettings.h"

#include <gallery/BoardPicture.h>

namespace quorvane {

/// The panel in four states.
[[nodiscard]] QImage panelBoard(const BoardSetting& setting);

/// Whatever the panel opens.
[[nodiscard]] QImage popoversBoard(const BoardSetting& setting);

} // namespace quorvane
