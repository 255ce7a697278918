// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Symbol.h>

#include <QKeySequence>

#include <functional>

namespace quorvane {

/// Something that a menu offers to do.
struct Command {
    QString title;
    Symbol symbol;
    QKeySequence keys; ///< that give it without the menu, for show; may be empty
    std::function<void()> run;
};

} // namespace quorvane
