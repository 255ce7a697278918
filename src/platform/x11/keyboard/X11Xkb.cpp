// SPDX-License-Identifier: MIT
#include "X11Xkb.h"

#include <x11_server/XcbReply.h>

#include <xkbcommon/xkbcommon-x11.h>

// The protocol header has a field of this name, which C++ reserves; the platform offers no other
// way to include it.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

#include <xcb/xcbext.h>

#include <array>
#include <sys/uio.h>

namespace quorvane::x11xkb {

namespace {

static_assert(coreKeyboard == XCB_XKB_ID_USE_CORE_KBD);

/// XkbLatchLockState (X Keyboard Extension protocol, 16.4). libxcb's own has no field for the
/// latches to set.
struct LatchLockState {
    std::uint8_t majorOpcode = 0; ///< libxcb fills in the first three
    std::uint8_t minorOpcode = 0;
    std::uint16_t length = 0;
    std::uint16_t device = coreKeyboard;
    std::uint8_t affectedLocks = 0;
    std::uint8_t locks = 0;
    std::uint8_t isGroupLocked = 0;
    std::uint8_t lockedGroup = 0;
    std::uint8_t affectedLatches = 0;
    std::uint8_t latches = 0;
    std::uint8_t unused = 0;
    std::uint8_t isGroupLatched = 0;
    std::uint16_t latchedGroup = 0;
};

static_assert(sizeof(LatchLockState) == sizeof(xcb_xkb_latch_lock_state_request_t));

XcbReply<xcb_xkb_get_state_reply_t> stateOf(xcb_connection_t* connection, std::uint16_t device) {
    return XcbReply<xcb_xkb_get_state_reply_t>(
        xcb_xkb_get_state_reply(connection, xcb_xkb_get_state(connection, device), nullptr));
}

} // namespace

std::optional<std::uint8_t> start(xcb_connection_t* connection) {
    std::uint8_t firstEvent = 0;
    const bool isThere = xkb_x11_setup_xkb_extension(
                             connection,
                             XKB_X11_MIN_MAJOR_XKB_VERSION,
                             XKB_X11_MIN_MINOR_XKB_VERSION,
                             XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS,
                             nullptr,
                             nullptr,
                             &firstEvent,
                             nullptr) != 0;
    return isThere ? std::optional(firstEvent) : std::nullopt;
}

void selectMapChanges(xcb_connection_t* connection, std::uint16_t device) {
    constexpr std::uint16_t events =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t mapParts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP |
        XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = details.newKeyboardDetails =
        XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    xcb_xkb_select_events_aux(connection, device, events, 0, 0, mapParts, mapParts, &details);
    xcb_flush(connection);
}

void omitReleasesOfRepeats(xcb_connection_t* connection) {
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto cookie = xcb_xkb_per_client_flags(connection, coreKeyboard, flag, flag, 0, 0, 0);
    xcb_discard_reply(connection, cookie.sequence);
    xcb_flush(connection);
}

void selectGroupChanges(xcb_connection_t* connection, std::uint16_t device) {
    xcb_xkb_select_events_details_t details{};
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(
        connection, device, XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0, 0, 0, 0, &details);
    xcb_flush(connection);
}

bool isStateChange(const xcb_generic_event_t& event) {
    // All events of the extension begin alike, with their kind in the second byte.
    return reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).xkbType ==
           XCB_XKB_STATE_NOTIFY;
}

std::uint8_t group(xcb_connection_t* connection, std::uint16_t device) {
    const auto state = stateOf(connection, device);
    return state ? state->group : std::uint8_t{0};
}

StuckModifiers stuckModifiers(xcb_connection_t* connection) {
    const auto state = stateOf(connection, coreKeyboard);
    return state ? StuckModifiers{state->lockedMods, state->latchedMods} : StuckModifiers{};
}

void setStuckModifiers(
    xcb_connection_t* connection, std::uint8_t affected, const StuckModifiers& modifiers) {
    LatchLockState request;
    request.affectedLocks = request.affectedLatches = affected;
    // The server refuses others.
    request.locks = modifiers.locked & affected;
    request.latches = modifiers.latched & affected;
    // The two in front of the request are libxcb's own, to put others before it.
    constexpr std::size_t reserved = 2;
    std::array<iovec, reserved + 1> parts{};
    parts[reserved] = {&request, sizeof(request)};
    const xcb_protocol_request_t protocol{1, &xcb_xkb_id, XCB_XKB_LATCH_LOCK_STATE, 1};
    xcb_send_request(connection, 0, &parts[reserved], &protocol);
}

} // namespace quorvane::x11xkb
