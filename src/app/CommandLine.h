// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace quorvane {

/// What the program is started with, beyond the options that Qt takes for itself.
struct CommandLine {
    bool isHidden = false; ///< "--hidden": nothing is to show, as at a login
    QStringList unknown;   ///< all that is no option of the program

    /// `arguments` begin with the program's own name.
    [[nodiscard]] static CommandLine parse(const QStringList& arguments);
};

} // namespace quorvane
