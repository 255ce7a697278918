// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StatusBar.h>
#include <platform_tray/TrayHosts.h>

#include <QDBusConnection>

namespace quorvane {

/// The system tray of a Linux desktop: StatusNotifierItem over the session bus, XEmbed where there
/// is no watcher of such items. One per process; the application object must exist before.
class TrayStatusBar final : public StatusBar {
public:
    explicit TrayStatusBar(const QDBusConnection& sessionBus) : m_hosts(sessionBus) {}

    /// The bar must outlive the item.
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(const StatusMenu& menu) override;

private:
    TrayHosts m_hosts;
};

} // namespace quorvane
