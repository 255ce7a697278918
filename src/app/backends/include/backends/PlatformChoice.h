// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PlatformServices.h>

#include <backends/DesktopSession.h>

namespace quorvane {

/// The desktop services for this session. Tray, appearance, software centre, notifications and the
/// changes of the time are there on every display. The others are chosen one by one, the first
/// candidate that the compositor, the X server or the bus lets have it; see ServiceCandidate. What
/// nobody has is done by a service that does nothing, the clipboard by Qt's.
///
/// $QUORVANE_BACKEND leaves one candidate for all ("x11", "null") or for some
/// ("clipboard=x11,keys=portal").
[[nodiscard]] PlatformServices makePlatformServices(const DesktopSession& session);

} // namespace quorvane
