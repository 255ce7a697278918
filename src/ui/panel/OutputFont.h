// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace quorvane {

/// The desktop's fixed font in the size of a callout: for output, and for the patterns that it
/// follows.
[[nodiscard]] QFont outputFont(const QFont& body);

} // namespace quorvane
