// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace quorvane {

/// Makes the window the one whose widgets have the focus, for Qt alone: the desktop is not asked.
void makeActive(QWidget& window);

} // namespace quorvane
