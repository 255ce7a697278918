// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

class QWidget;

namespace quorvane {

/// Says what a plain widget is to assistive technology, which Qt tells by its own classes alone: a
/// group of controls, a menu. To be called before the widget is shown.
void setWidgetRole(QWidget& widget, QAccessible::Role role);

} // namespace quorvane
