// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <QRect>

#include <vector>

class QScreen;

/// The screens on which this program places its windows.
namespace quorvane::screens {

/// The part of each screen that docks and bars leave free; `excluded` is left out, for a screen
/// that is about to be removed.
[[nodiscard]] std::vector<QRect> availableAreas(const QScreen* excluded = nullptr);

/// The screen of the focused window, else of the pointer, else the primary one.
[[nodiscard]] const QScreen& mainScreen(const Workspace& workspace);

/// The screen that contains the point, else the main one.
[[nodiscard]] const QScreen& screenAround(QPoint place, const Workspace& workspace);

} // namespace quorvane::screens
