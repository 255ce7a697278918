// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace quorvane {

/// A window, as the compositor tells of it to those who list windows.
struct WaylandToplevel {
    std::uint64_t id = 0; ///< never used again for another window
    QString appId;        ///< of a window of X11 the class
    bool isActivated = false;
    bool isMinimised = false;
    std::uint64_t parent = 0; ///< the window whose dialog it is, if any

    friend bool operator==(const WaylandToplevel&, const WaylandToplevel&) = default;
};

} // namespace quorvane
