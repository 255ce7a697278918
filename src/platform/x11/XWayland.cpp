// SPDX-License-Identifier: MIT
#include <platform_x11/XWayland.h>
#include <x11_server/QtX11.h>
#include <x11_server/XcbReply.h>

#include <string_view>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

bool hasExtension(xcb_connection_t* x11, std::string_view name) {
    const auto cookie =
        xcb_query_extension(x11, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(x11, cookie, nullptr));
    return reply && reply->present != 0;
}

} // namespace

bool isXWayland(const XWaylandEvidence& evidence) {
    if (evidence.hasExtension || evidence.sessionType == "wayland"_L1)
        return true;
    return evidence.sessionType != "x11"_L1 && !evidence.waylandDisplay.isEmpty();
}

bool runsOnXWayland(const Environment& environment) {
    auto* x11 = qtx11::connection();
    return x11 != nullptr && isXWayland(
                                 {hasExtension(x11, "XWAYLAND"),
                                  environment("XDG_SESSION_TYPE").value_or(QString()),
                                  environment("WAYLAND_DISPLAY").value_or(QString())});
}

} // namespace quorvane
