// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// What the program needs of a desktop, as people would list it.
enum class DesktopService { Shortcut, Typing, Clipboard, FrontWindow, Panel, Tray };

/// How a service works on this desktop.
struct ServiceState {
    DesktopService service = DesktopService::Shortcut;
    bool isWhole = true; ///< as on a desktop that offers everything
    QString explanation; ///< what works here and what does not, and why; a sentence for the user

    friend bool operator==(const ServiceState&, const ServiceState&) = default;
};

} // namespace quorvane
