// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QScreen;

namespace quorvane {

/// What a list of windows does not tell, where the compositor tells it in its own way.
class VirtualDesktops {
public:
    virtual ~VirtualDesktops() = default;

    /// Called whenever a screen shows another virtual desktop than before; replaces an earlier
    /// handler.
    virtual void onSwitched(std::function<void()> handler) = 0;

    /// The screen that the user works on; null where nobody tells.
    [[nodiscard]] virtual QScreen* focusedScreen() const = 0;
};

} // namespace quorvane
