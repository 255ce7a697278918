// SPDX-License-Identifier: MIT
#include <x11_server/X11ServerClock.h>

#include <xcb/sync.h>

#include <string_view>
#include <utility>

namespace quorvane {

namespace {

constexpr std::uint32_t noCounter = 0;

bool hasSyncExtension(xcb_connection_t* connection) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_sync_id);
    if (extension == nullptr || extension->present == 0)
        return false;
    const XcbReply<xcb_sync_initialize_reply_t> version(xcb_sync_initialize_reply(
        connection,
        xcb_sync_initialize(connection, XCB_SYNC_MAJOR_VERSION, XCB_SYNC_MINOR_VERSION),
        nullptr));
    return version != nullptr;
}

// On the wire the name follows its length at once. xcb's own accessor, of 1.15, looks for it behind
// the padding that the compiler adds to the structure.
std::string_view nameOf(const xcb_sync_systemcounter_t& counter) {
    return {reinterpret_cast<const char*>(&counter.name_len + 1), counter.name_len};
}

// The one counter that every server has (X Synchronization Extension 2.1). Unlike the time stamp of
// an event, which the recipe of ICCCM 2.1 provokes, its value comes as a reply: it is known before
// the next request is sent.
std::uint32_t serverTimeCounter(xcb_connection_t* connection) {
    if (!hasSyncExtension(connection))
        return noCounter;
    const XcbReply<xcb_sync_list_system_counters_reply_t> list(xcb_sync_list_system_counters_reply(
        connection, xcb_sync_list_system_counters(connection), nullptr));
    if (!list)
        return noCounter;
    auto counters = xcb_sync_list_system_counters_counters_iterator(list.get());
    for (; counters.rem > 0; xcb_sync_systemcounter_next(&counters)) {
        if (nameOf(*counters.data) == "SERVERTIME")
            return counters.data->counter;
    }
    return noCounter;
}

} // namespace

X11ServerClock::X11ServerClock(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_counter(serverTimeCounter(m_connection->xcb())) {
}

xcb_timestamp_t X11ServerClock::now() const {
    if (m_counter == noCounter)
        return m_connection->lastUserTime();
    auto* xcb = m_connection->xcb();
    const XcbReply<xcb_sync_query_counter_reply_t> reply(
        xcb_sync_query_counter_reply(xcb, xcb_sync_query_counter(xcb, m_counter), nullptr));
    return reply ? reply->counter_value.lo : m_connection->lastUserTime();
}

} // namespace quorvane
