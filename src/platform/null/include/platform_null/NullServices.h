// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PlatformServices.h>

namespace quorvane {

/// One service of each kind that does nothing: no right, no taps, no keys, an empty pasteboard,
/// nothing in front, no tray. They run everywhere. The queue must outlive the services.
[[nodiscard]] PlatformServices makeNullServices(MainQueue& mainQueue);

} // namespace quorvane
