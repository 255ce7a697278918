// SPDX-License-Identifier: MIT
#include <controls/AccentFill.h>

namespace quorvane {

QColor accentFill(PressableControl::VisualState state, const Theme& theme) {
    switch (state) {
    case PressableControl::VisualState::Hover:
        return theme.accentHover;
    case PressableControl::VisualState::Pressed:
        return theme.accentPressed;
    case PressableControl::VisualState::Normal:
        break;
    }
    return theme.accent;
}

} // namespace quorvane
