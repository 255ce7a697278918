// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <time/Instant.h>

namespace quorvane {

/// One date that a view shows and edits; the date itself is someone else's.
struct DateBinding {
    std::function<Instant()> get;
    std::function<void(Instant)> set;
};

} // namespace quorvane
