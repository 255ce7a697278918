// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <QRect>

#include <vector>

class QScreen;

/// The screens as windows of this program see them; never without one.
namespace quorvane::screens {

/// What docks and bars leave free of each screen, but for the one that is going away.
[[nodiscard]] std::vector<QRect> availableAreas(const QScreen* going = nullptr);

/// Where the user is: the screen of the focused window, else of the pointer.
[[nodiscard]] const QScreen& mainScreen(const Workspace& workspace);

/// The screen at that place, else the main one.
[[nodiscard]] const QScreen& screenAround(QPoint place, const Workspace& workspace);

} // namespace quorvane::screens
