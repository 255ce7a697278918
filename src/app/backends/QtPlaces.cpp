// SPDX-License-Identifier: MIT
#include <QString>

#include <backends/QtPlaces.h>

namespace quorvane {

void letQtKeepPlaces(const Environment& environment) {
    if (!environment("SWAYSOCK").value_or(QString()).isEmpty())
        qputenv("QT_WAYLAND_DISABLE_FIXED_POSITIONS", "1");
}

} // namespace quorvane
