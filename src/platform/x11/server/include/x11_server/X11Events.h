// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>

namespace quorvane {

/// The code by which an event of a type announces itself (X Window System Protocol, appendix B).
template <typename Event>
inline constexpr std::uint8_t eventCode = 0;

template <>
inline constexpr std::uint8_t eventCode<xcb_destroy_notify_event_t> = XCB_DESTROY_NOTIFY;
template <>
inline constexpr std::uint8_t eventCode<xcb_key_press_event_t> = XCB_KEY_PRESS;
template <>
inline constexpr std::uint8_t eventCode<xcb_mapping_notify_event_t> = XCB_MAPPING_NOTIFY;
template <>
inline constexpr std::uint8_t eventCode<xcb_property_notify_event_t> = XCB_PROPERTY_NOTIFY;
template <>
inline constexpr std::uint8_t eventCode<xcb_selection_clear_event_t> = XCB_SELECTION_CLEAR;
template <>
inline constexpr std::uint8_t eventCode<xcb_selection_request_event_t> = XCB_SELECTION_REQUEST;
template <>
inline constexpr std::uint8_t eventCode<xcb_selection_notify_event_t> = XCB_SELECTION_NOTIFY;

/// The event as one of an extension, whose code the server has given; null if the code differs. It
/// may come from the server or from another client.
template <typename Event>
[[nodiscard]] const Event* eventAs(const xcb_generic_event_t& event, int code) {
    constexpr std::uint8_t sentByClient = 0x80;
    if ((event.response_type & ~sentByClient) != code)
        return nullptr;
    return reinterpret_cast<const Event*>(&event);
}

/// The same for an event of the core protocol.
template <typename Event>
[[nodiscard]] const Event* eventAs(const xcb_generic_event_t& event) {
    static_assert(eventCode<Event> != 0);
    return eventAs<Event>(event, eventCode<Event>);
}

} // namespace quorvane
