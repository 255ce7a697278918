// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>

namespace quorvane {

/// Recognises keys that we posted, so that they do not trigger a shortcut that is also a window's
/// paste command. An event carries the number of our last request that the server had processed.
class X11PostedKeys {
public:
    /// The requests of one connection that typed, first to last.
    void note(xcb_void_cookie_t first, xcb_void_cookie_t last) {
        m_first = first.sequence;
        m_count = last.sequence - first.sequence + 1;
    }

    [[nodiscard]] bool caused(const xcb_generic_event_t& event) const {
        return event.full_sequence - m_first < m_count;
    }

private:
    std::uint32_t m_first = 0;
    std::uint32_t m_count = 0;
};

} // namespace quorvane
