// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Why a text that was to be inserted was copied instead.
enum class CopyReason {
    NoWindow,    ///< nothing was in front that could take it
    NoWayToType, ///< the desktop does not let us post keys
};

} // namespace quorvane
