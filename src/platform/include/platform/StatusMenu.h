// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>
#include <vector>

namespace quorvane {

/// One line of the menu of a status item; without a title it is a separator.
struct StatusMenuEntry {
    QString title;
    QKeySequence keys; ///< for show; may be empty
    std::function<void()> run;

    [[nodiscard]] bool isSeparator() const { return title.isEmpty(); }
};

using StatusMenu = std::vector<StatusMenuEntry>;

} // namespace quorvane
