// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <x11_clipboard/X11PassingText.h>

#include <functional>

namespace quorvane {

/// A passing text that has been taken back before the client that the paste keys went to has
/// fetched it, as one does that is busy: its first request for text still gets it, and nobody
/// else's. It must not paste what the user had copied before.
class X11LateText {
public:
    /// For a request that was made before the text was taken back, by the server's time.
    static constexpr Seconds longestForEarlierRequests{10.0};
    /// For one without a time, or a later one: the user may have pasted anew.
    static constexpr Seconds longestForOthers{3.0};

    /// `ended` is called when its time is over; it may destroy this. The queue must outlive it.
    X11LateText(
        MainQueue& queue,
        X11PassingText text,
        xcb_timestamp_t takenBack,
        std::function<void()> ended);

    [[nodiscard]] const X11SelectionContent& content() const { return m_text.content; }

    /// Whether the request gets this text.
    [[nodiscard]] bool
    isFor(const xcb_selection_request_event_t& request, std::uint32_t client) const;

private:
    X11PassingText m_text;
    xcb_timestamp_t m_takenBack;
    bool m_isForOthers;
    Deadline m_endForOthers;
    Deadline m_end;
};

} // namespace quorvane
