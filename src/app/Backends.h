// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PlatformServices.h>

#include <QString>

namespace quorvane {

/// The desktop services for this session: those of the backend named by `forced` ("x11", "null";
/// any other text chooses none), else those that suit the platform plugin that Qt runs on. If that
/// backend is not available, services that do nothing.
[[nodiscard]] PlatformServices
makePlatformServices(const QString& forced, const QString& qtPlatform, MainQueue& queue);

} // namespace quorvane
