// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PlatformServices.h>

namespace quorvane {

/// How much of the session an X server knows.
enum class X11Reach {
    Session,
    OwnWindows, ///< on XWayland: neither the keys nor the windows of the programs of Wayland, but
                ///< the clipboard, which the compositor shares
};

/// Replaces, among the services, those that an X server of that reach has; false, and nothing
/// changed, where $DISPLAY names no server that answers. The application object must exist before,
/// and the queue outlive them.
[[nodiscard]] bool addX11Services(
    PlatformServices& services,
    MainQueue& mainQueue,
    X11Reach reach,
    const std::function<void()>& onLost = {});

} // namespace quorvane
