// SPDX-License-Identifier: MIT
#include "ContentView.h"

#include "FieldPaste.h"

#include <utility>

namespace quorvane {

std::unique_ptr<PopoverView> makeContentView(
    DateTimeModel& model,
    const AppDelegate::Dependencies& dependencies,
    PopoverView::Callbacks callbacks) {
    auto& platform = dependencies.platform;
    return std::make_unique<PopoverView>(
        model,
        PopoverView::Dependencies{
            *platform.pasteboard,
            *platform.keyboardLayout,
            dependencies.zones,
            dependencies.mainQueue,
            dependencies.clock,
            dependencies.currentZone,
            {[&traits = *platform.windowTraits] {
                return traits.isComposited();
            }},
            fieldPaste(*platform.pasteboard)},
        std::move(callbacks));
}

} // namespace quorvane
