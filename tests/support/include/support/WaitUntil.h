// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace quorvane {

/// Runs the main loop until the condition holds; false if it does not within the limit, which is
/// for failures alone.
[[nodiscard]] bool waitUntil(
    const std::function<bool()>& condition, std::chrono::seconds limit = std::chrono::seconds(10));

} // namespace quorvane
