// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PlatformServices.h>
#include <settings/Environment.h>

#include <QString>

namespace quorvane {

/// The desktop services for this session, each by itself. Tray, appearance, software centre and
/// Qt's clipboard are there on every display. What a display alone can have (the shortcut, posted
/// keys, other programs' windows, the whole clipboard) comes from the backend that
/// $QUORVANE_BACKEND names, "x11" or "null", which has nothing of that; else from the one that
/// suits the platform plugin that Qt runs on. Where it is not available, services that do nothing
/// stand in. `onDisplayLost` may be called more than once, when the connection to the display has
/// ended: shortcut, keys and clipboard do nothing from then on.
[[nodiscard]] PlatformServices makePlatformServices(
    const Environment& environment,
    const QString& qtPlatform,
    MainQueue& queue,
    const std::function<void()>& onDisplayLost = {});

} // namespace quorvane
