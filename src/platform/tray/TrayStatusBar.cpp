// SPDX-License-Identifier: MIT
#include "TrayStatusItem.h"

#include <platform_tray/TrayStatusBar.h>

namespace quorvane {

std::unique_ptr<StatusItem> TrayStatusBar::makeStatusItem(const StatusMenu& menu) {
    if (!m_hosts.arePossible())
        return nullptr;
    return std::make_unique<TrayStatusItem>(m_hosts, menu);
}

} // namespace quorvane
