// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Installation.h>

namespace quorvane {

/// Finds out how the program with this path was installed, in a system whose files are below
/// `root`.
[[nodiscard]] Installation
installationOf(const QString& program, const QString& root = QStringLiteral("/"));

} // namespace quorvane
