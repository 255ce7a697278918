// SPDX-License-Identifier: MIT
#include <controls/AccentFill.h>

namespace quorvane {

QColor accentFill(PressableControl::Look look, const Theme& theme) {
    switch (look) {
    case PressableControl::Look::Hover:
        return theme.accentHover;
    case PressableControl::Look::Pressed:
        return theme.accentPress;
    case PressableControl::Look::Rest:
        break;
    }
    return theme.accent;
}

} // namespace quorvane
