// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace quorvane {

/// Lets a window that is about to be shown appear gradually. Where windows are not composited, or
/// the user wants no motion, it appears at once.
void fadeIn(QWidget& window, bool isComposited);

} // namespace quorvane
