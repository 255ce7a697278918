// SPDX-License-Identifier: MIT
#pragma once

#include <foundation/MainQueue.h>
#include <platform/PlatformServices.h>

namespace quorvane {

/// A desktop on which nothing can be done: no right, no taps, no keys, an empty pasteboard, nothing
/// in front. It runs everywhere. The queue must outlive the services.
[[nodiscard]] PlatformServices makeNullServices(MainQueue& mainQueue);

} // namespace quorvane
