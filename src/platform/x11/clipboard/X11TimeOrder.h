// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>

namespace quorvane {

/// Of two times of the server, whose clock starts over after 49.7 days.
[[nodiscard]] constexpr bool isEarlier(xcb_timestamp_t time, xcb_timestamp_t than) {
    return static_cast<std::int32_t>(time - than) < 0;
}

} // namespace quorvane
