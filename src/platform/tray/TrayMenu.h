// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StatusMenu.h>

#include <QPoint>
#include <QRect>
#include <QSize>

#include <memory>

class QMenu;

namespace quorvane {

/// The menu as the toolkit, or the host of the icon, draws it.
[[nodiscard]] std::unique_ptr<QMenu> makeTrayMenu(const StatusMenu& entries);

/// Where a menu opens: below the icon, its leading edge at the icon's; above it where there is no
/// room below. All in points of the screen.
[[nodiscard]] QPoint trayMenuPlace(const QRect& icon, const QSize& menu, const QRect& available);

} // namespace quorvane
