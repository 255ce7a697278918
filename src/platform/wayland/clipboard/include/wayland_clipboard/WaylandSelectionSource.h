// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>

#include <memory>
#include <optional>
#include <wayland_clipboard/DataDevice.h>

namespace quorvane {

/// Where the contents of a clipboard are to be had: at hand, because they are ours or none, or from
/// who offers them.
struct WaylandSelectionSource {
    std::optional<PasteboardItem> atHand;
    std::shared_ptr<DataOffer> offer; ///< never null where nothing is at hand
};

} // namespace quorvane
