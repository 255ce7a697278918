// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// Whether `action` aborts the process, tried in a child.
[[nodiscard]] bool stopsProcess(const std::function<void()>& action);

} // namespace quorvane
