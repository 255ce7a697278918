// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

namespace quorvane {

/// Every text of what shows of a window: those that its widgets paint, tooltips, placeholders, its
/// title, actions, and what assistive technology reads.
[[nodiscard]] QStringList visibleTexts(const QWidget& window);

} // namespace quorvane
