// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// What a zone's clocks show, against Greenwich.
struct LocalOffset {
    int seconds = 0; ///< east of Greenwich
    bool isDaylight = false;
};

} // namespace quorvane
