// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QKeyEvent;

namespace quorvane {

/// What the key means: by its symbol, which layouts, levels of them and Num Lock decide. Only for a
/// key without one, Tab, Return and the arrows go by their position on the keyboard.
[[nodiscard]] Qt::Key meaningOf(const QKeyEvent& event);

} // namespace quorvane
