// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace quorvane {

/// The widget below `root` that assistive technology knows by this role and name; null if there is
/// none. Hidden ones are found too.
[[nodiscard]] QWidget*
widgetByRole(const QWidget& root, QAccessible::Role role, const QString& name);

} // namespace quorvane
