// SPDX-License-Identifier: MIT
#include "X11XInput.h"

#include <x11_server/XcbReply.h>

#include <xcb/xinput.h>

#include <string_view>

namespace quorvane::x11xinput {

namespace {

constexpr std::uint16_t majorVersion = 2;
constexpr std::uint16_t minorVersion = 1;

std::string_view nameOf(const xcb_input_xi_device_info_t& device) {
    return {
        xcb_input_xi_device_info_name(&device),
        static_cast<std::size_t>(xcb_input_xi_device_info_name_length(&device))};
}

} // namespace

bool start(xcb_connection_t* connection) {
    // Asked first: a request to an extension that is not there shuts the connection down.
    const auto* extension = xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || extension->present == 0)
        return false;
    const auto cookie = xcb_input_xi_query_version(connection, majorVersion, minorVersion);
    const XcbReply<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(connection, cookie, nullptr));
    return version && version->major_version >= majorVersion &&
           (version->major_version > majorVersion || version->minor_version >= minorVersion);
}

std::optional<std::uint16_t> testKeyboard(xcb_connection_t* connection, std::uint16_t master) {
    const auto cookie = xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL);
    const XcbReply<xcb_input_xi_query_device_reply_t> reply(
        xcb_input_xi_query_device_reply(connection, cookie, nullptr));
    if (!reply)
        return std::nullopt;
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem > 0;
         xcb_input_xi_device_info_next(&device)) {
        // No property that clients may rely on marks it; the server's name for it does.
        if (device.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD &&
            device.data->attachment == master &&
            nameOf(*device.data).find("XTEST") != nameOf(*device.data).npos)
            return device.data->deviceid;
    }
    return std::nullopt;
}

void selectKeyReleases(xcb_connection_t* connection, xcb_window_t root, bool wanted) {
    const struct {
        xcb_input_event_mask_t header{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t events = 0;
    } mask{.events = wanted ? std::uint32_t{XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE} : 0};

    xcb_input_xi_select_events(connection, root, 1, &mask.header);
}

std::optional<std::uint32_t>
releasedKey(xcb_connection_t* connection, const xcb_generic_event_t& event) {
    if (event.response_type != XCB_GE_GENERIC)
        return std::nullopt;
    const auto& release = reinterpret_cast<const xcb_input_raw_key_release_event_t&>(event);
    const auto* extension = xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || release.extension != extension->major_opcode ||
        release.event_type != XCB_INPUT_RAW_KEY_RELEASE)
        return std::nullopt;
    return release.detail;
}

} // namespace quorvane::x11xinput
