// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

/// Looks up an environment variable; none where it is not set.
using Environment = std::function<std::optional<QString>(const char* name)>;

/// The environment of this process.
[[nodiscard]] Environment processEnvironment();

} // namespace quorvane
