// SPDX-License-Identifier: MIT
#pragma once

#include "AppDelegate.h"

#include <panel/PopoverView.h>

#include <memory>

namespace quorvane {

/// The view that panel and popover hold one of each. All that it is handed must outlive it.
[[nodiscard]] std::unique_ptr<PopoverView> makeContentView(
    DateTimeModel& model,
    const AppDelegate::Dependencies& dependencies,
    PopoverView::Callbacks callbacks);

} // namespace quorvane
