// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace quorvane {

/// A span of time in seconds, with a fraction.
using Seconds = std::chrono::duration<double>;

} // namespace quorvane
