// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

/// The X Input extension, by which the server tells its keyboards apart.
namespace quorvane::x11xinput {

/// Announces us to the extension. False if the server has none of version 2.1 or later, which is
/// the first to report keys whoever holds the keyboard.
[[nodiscard]] bool start(xcb_connection_t* connection);

/// The keyboard on which XTEST types, among those that make up the keyboard `master`.
[[nodiscard]] std::optional<std::uint16_t>
testKeyboard(xcb_connection_t* connection, std::uint16_t master);

/// Whether to be told of each key of the session that goes up.
void selectKeyReleases(xcb_connection_t* connection, xcb_window_t root, bool wanted);

/// The key that went up, if the event says so.
[[nodiscard]] std::optional<std::uint32_t>
releasedKey(xcb_connection_t* connection, const xcb_generic_event_t& event);

} // namespace quorvane::x11xinput
