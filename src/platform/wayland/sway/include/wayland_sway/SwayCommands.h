// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>

#include <cstdint>

namespace quorvane {

/// A window of this process, as sway's commands name it.
struct SwayCriteria {
    std::int64_t pid = 0;
    QString title;
};

// Rules are for windows that appear later. They stay as long as sway runs, where no other process
// will have windows of this pid and title. A list of commands in one rule is for sway's file alone:
// from a program it ends the rule at the first comma, and does the rest to whatever has the
// keyboard.

[[nodiscard]] QString swayRuleToFloat(const SwayCriteria& window);

/// Shown on all workspaces.
[[nodiscard]] QString swayRuleToStick(const SwayCriteria& window);

/// To a place of the whole desktop, in points.
[[nodiscard]] QString swayRuleToMove(const SwayCriteria& window, const QPoint& place);

[[nodiscard]] QString swayMove(const SwayCriteria& window, const QPoint& place);

/// Gives the keyboard, also where a window that fills the screen has to make room.
[[nodiscard]] QString swayFocus(const SwayCriteria& window);

} // namespace quorvane
