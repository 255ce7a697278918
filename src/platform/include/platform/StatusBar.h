// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StatusItem.h>

#include <memory>

namespace quorvane {

/// The part of the desktop's menu bar (its system tray) that programs put their icons into.
class StatusBar {
public:
    virtual ~StatusBar() = default;

    /// A new item, hidden. `menu` is what a desktop that shows the item's menu by itself shows;
    /// null on a desktop without any such bar.
    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem(const StatusMenu& menu) = 0;
};

} // namespace quorvane
