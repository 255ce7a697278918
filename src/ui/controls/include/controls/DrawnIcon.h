// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

namespace quorvane {

/// An icon that is drawn anew in each size that is asked for, from a file of SVG; without a picture
/// where that file is missing. Qt's own does so by a plugin, and keeps what it has drawn in a cache
/// that wakes the program half a minute later.
[[nodiscard]] QIcon drawnIcon(const QString& path);

} // namespace quorvane
