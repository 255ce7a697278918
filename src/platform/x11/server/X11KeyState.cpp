// SPDX-License-Identifier: MIT
#include <x11_server/X11KeyState.h>
#include <x11_server/XcbReply.h>

#include <algorithm>
#include <climits>
#include <iterator>

namespace quorvane::x11keystate {

std::vector<xcb_keycode_t> keysDown(xcb_connection_t* connection) {
    std::vector<xcb_keycode_t> keys;
    const XcbReply<xcb_query_keymap_reply_t> down(
        xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
    for (std::size_t key = 0; down && key < std::size(down->keys) * CHAR_BIT; ++key) {
        if ((down->keys[key / CHAR_BIT] >> (key % CHAR_BIT) & 1) != 0)
            keys.push_back(static_cast<xcb_keycode_t>(key));
    }
    return keys;
}

bool isDown(xcb_connection_t* connection, xcb_keycode_t key) {
    return std::ranges::count(keysDown(connection), key) > 0;
}

} // namespace quorvane::x11keystate
