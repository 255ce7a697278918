// SPDX-License-Identifier: MIT
#include "X11SystemCounters.h"

#include <x11_server/X11ServerClock.h>

#include <xcb/sync.h>

#include <cstddef>
#include <span>
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
    // What follows the fixed part; the protocol counts in units of four bytes, from byte 32 on.
    const std::span data(
        reinterpret_cast<const std::byte*>(list.get() + 1), std::size_t{list->length} * 4);
    return systemCounter(data, "SERVERTIME").value_or(noCounter);
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
