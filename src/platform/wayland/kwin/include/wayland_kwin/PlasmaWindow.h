// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace quorvane {

/// A window, as KWin tells of it to taskbars.
struct PlasmaWindow {
    std::uint64_t id = 0; ///< never used again for another window
    QString appId;        ///< the name of a desktop entry, as far as there is one
    QString resourceName; ///< of a window of X11
    std::uint32_t pid = 0;
    bool isActive = false;
    bool isMinimised = false;
    bool isOnAllDesktops = false;
    QStringList desktops;     ///< those that it is on; empty where nobody tells
    QRect frame;              ///< on the screen, in points
    std::uint64_t parent = 0; ///< the window whose dialog it is, if any
};

} // namespace quorvane
