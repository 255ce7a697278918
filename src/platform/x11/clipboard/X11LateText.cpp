// SPDX-License-Identifier: MIT
#include "X11TimeOrder.h"

#include <x11_clipboard/X11LateText.h>

#include <utility>

namespace quorvane {

X11LateText::X11LateText(
    MainQueue& queue, X11PassingText text, xcb_timestamp_t takenBack, std::function<void()> ended)
    : m_text(std::move(text)),
      m_takenBack(takenBack),
      // A client that may have fetched it elsewhere would get it twice.
      m_isForOthers(!m_text.wasLost),
      m_endForOthers(queue.after(longestForOthers, [this] { m_isForOthers = false; })),
      m_end(queue.after(longestForEarlierRequests, std::move(ended))) {
}

bool X11LateText::isFor(const xcb_selection_request_event_t& request, std::uint32_t client) const {
    if (client != m_text.client)
        return false;
    if (request.time == XCB_CURRENT_TIME || !isEarlier(request.time, m_takenBack))
        return m_isForOthers;
    // An older request is for what stood there before the text.
    return !isEarlier(request.time, m_text.since);
}

} // namespace quorvane
