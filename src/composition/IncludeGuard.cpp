// SPDX-License-Identifier: MIT
#include <composition/IncludeGuard.h>

namespace quorvane {

IncludeGuard IncludeGuard::of(bool includeDate, bool includeTime) {
    const bool onlyDate = includeDate && !includeTime;
    const bool onlyTime = includeTime && !includeDate;
    return {!onlyDate, !onlyTime};
}

} // namespace quorvane
