// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// The accent as the fill of a control in that look: it darkens where others are laid over.
[[nodiscard]] QColor accentFill(PressableControl::VisualState state, const Theme& theme);

} // namespace quorvane
