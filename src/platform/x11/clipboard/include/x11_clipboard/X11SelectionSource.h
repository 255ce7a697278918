// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>

#include <xcb/xcb.h>

#include <optional>

namespace quorvane {

/// Where a selection's contents come from.
struct X11SelectionSource {
    xcb_atom_t selection = XCB_ATOM_NONE;
    std::optional<PasteboardItem> atHand; ///< none: its owner has to be asked
};

} // namespace quorvane
