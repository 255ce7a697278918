// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PlatformServices.h>

namespace quorvane {

/// Replaces, among the services, those that an X server has; false, and nothing changed, where
/// $DISPLAY names no server that answers. The application object must exist before, and the queue
/// outlive them.
[[nodiscard]] bool addX11Services(PlatformServices& services, MainQueue& mainQueue);

} // namespace quorvane
