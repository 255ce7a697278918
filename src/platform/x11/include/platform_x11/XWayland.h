// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

namespace quorvane {

/// What tells the X server that a Wayland compositor runs for programs of X11 from any other.
struct XWaylandEvidence {
    bool hasExtension = false; ///< XWAYLAND, which is there for nothing else
    QString sessionType;       ///< what $XDG_SESSION_TYPE says; empty where it is not set
    QString waylandDisplay;    ///< what $WAYLAND_DISPLAY says
};

/// Without the extension, which servers before 23.1 lack, the session's type decides; where that is
/// neither of the two, as after a start from a terminal, a Wayland display beside ours does.
[[nodiscard]] bool isXWayland(const XWaylandEvidence& evidence);

/// Whether the X server that Qt is connected to is one of a Wayland compositor; false where Qt runs
/// on something else.
[[nodiscard]] bool runsOnXWayland(const Environment& environment);

} // namespace quorvane
