// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

class AppDelegate;

/// What the desktop calls by name: launchers, keys that the user has bound, scripts.
struct DesktopAction {
    QLatin1StringView name;
    void (AppDelegate::*perform)();
    bool isDelivery = false; ///< does nothing while there is nothing to deliver
};

/// Null for an unknown name.
[[nodiscard]] const DesktopAction* desktopAction(QStringView name);

} // namespace quorvane
