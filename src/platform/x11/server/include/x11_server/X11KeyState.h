// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <vector>

/// Which keys the server takes for pressed.
namespace quorvane::x11keystate {

/// Lowest first; none if the server does not answer.
[[nodiscard]] std::vector<xcb_keycode_t> keysDown(xcb_connection_t* connection);

[[nodiscard]] bool isDown(xcb_connection_t* connection, xcb_keycode_t key);

} // namespace quorvane::x11keystate
