// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PlatformServices.h>

#include <loop/MainQueue.h>

namespace quorvane {

/// A desktop on which nothing can be done: no right, no taps, no keys, an empty pasteboard, nothing
/// in front. It runs everywhere. The queue must outlive the services.
[[nodiscard]] PlatformServices makeNullServices(MainQueue& mainQueue);

} // namespace quorvane
