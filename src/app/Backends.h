// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PlatformServices.h>

#include <QString>

#include <loop/MainQueue.h>

namespace quorvane {

/// The desktop services for this session: by the forced name ("x11", "null"; anything else is as
/// if nothing were forced), else by the kind of display that Qt found. Where a backend cannot be
/// had, the services that do nothing.
[[nodiscard]] PlatformServices
makePlatformServices(const QString& forced, const QString& qtPlatform, MainQueue& queue);

} // namespace quorvane
