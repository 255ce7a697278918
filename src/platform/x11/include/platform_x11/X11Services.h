// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PlatformServices.h>

#include <loop/MainQueue.h>
#include <optional>

namespace quorvane {

/// All services on the X server that $DISPLAY names; none if it does not answer. The application
/// object must exist before and the queue outlive them.
[[nodiscard]] std::optional<PlatformServices> makeX11Services(MainQueue& mainQueue);

} // namespace quorvane
