// SPDX-License-Identifier: MIT
#pragma once

#include <x11_clipboard/X11SelectionContent.h>

#include <xcb/xcb.h>

namespace quorvane {

/// What an owner knows of a passing text until that is taken back.
struct X11PassingText {
    X11SelectionContent content;
    std::uint32_t client = 0; ///< to which the paste keys go: the part that its resources share
    xcb_timestamp_t since = XCB_CURRENT_TIME;
    bool isFetched = false; ///< by that client
    bool wasLost = false;   ///< to another owner, from whom the client may have fetched it
};

} // namespace quorvane
