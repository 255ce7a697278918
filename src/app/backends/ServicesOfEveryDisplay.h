// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PlatformServices.h>

#include <backends/DesktopSession.h>

namespace quorvane {

/// What is there on every display; the other services do nothing yet.
[[nodiscard]] PlatformServices servicesOfEveryDisplay(const DesktopSession& session);

/// The portal's word counts most, then what the settings manager of the display says, which
/// `services` has by now, then what stands in files.
void completeAppearance(PlatformServices& services, const Environment& environment);

/// Has the desktop's word for a locked screen stop what would be typed into the lock. For desktops
/// on which no program can have the keyboard for itself, and a lock shows by nothing else.
void heedScreenLock(PlatformServices& services);

} // namespace quorvane
