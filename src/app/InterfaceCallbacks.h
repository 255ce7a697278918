// SPDX-License-Identifier: MIT
#pragma once

#include <panel/PopoverView.h>

#include <functional>
#include <memory>

class QWidget;

namespace quorvane {

/// What panel and popover ask of their owner.
struct InterfaceCallbacks {
    /// A new view for a window that is being made.
    std::function<std::unique_ptr<PopoverView>()> makeContentView;
    std::function<void(QWidget& window)> attachMainMenu;
    /// The interface begins to show after it was hidden; the first paint has what this leads to.
    std::function<void()> onAppearing;
    /// A window has been painted for the first time; each new window reports it once.
    std::function<void()> onFirstPaint;
};

} // namespace quorvane
