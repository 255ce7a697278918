// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// What the desktop can show around a popover; asked at each opening.
struct PopoverEffects {
    /// Whether windows are composited: only then a popover has a shadow and can fade. Absent: no.
    std::function<bool()> isComposited;
};

} // namespace quorvane
