// SPDX-License-Identifier: MIT
#pragma once

#include <time/ZoneDatabase.h>

#include <QString>
#include <QTextStream>

namespace quorvane {

/// How many rows held. A file that cannot be run at all counts as one that failed.
struct VectorCount {
    int passed = 0;
    int failed = 0;

    VectorCount& operator+=(VectorCount other);
};

/// Runs the rows of a file, whose kind is its name up to the first dot, and tells `out` which of
/// them failed and why.
[[nodiscard]] VectorCount
runVectorFile(const QString& path, const ZoneDatabase& zones, QTextStream& out);

} // namespace quorvane
