// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// What the line below the panel's header says.
struct PanelHint {
    QString text;   ///< empty for nothing to say
    QString action; ///< on the button that leads to where it can be set up
};

} // namespace quorvane
