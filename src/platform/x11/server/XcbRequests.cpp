// SPDX-License-Identifier: MIT
#include <x11_server/XcbReply.h>
#include <x11_server/XcbRequests.h>

#include <cstdint>

namespace quorvane::xcbrequests {

bool owns(xcb_connection_t* connection, xcb_window_t window) {
    const auto* setup = xcb_get_setup(connection);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

void waitForServer(xcb_connection_t* connection) {
    const XcbReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto length = static_cast<std::uint16_t>(name.size());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, length, name.data()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<xcb_atom_t> atoms(xcb_connection_t* connection, const QStringList& names) {
    std::vector<xcb_intern_atom_cookie_t> questions;
    for (const auto& name : names) {
        const auto bytes = name.toUtf8();
        const auto length = static_cast<std::uint16_t>(bytes.size());
        questions.push_back(xcb_intern_atom(connection, 0, length, bytes.constData()));
    }
    std::vector<xcb_atom_t> atoms;
    for (const auto& question : questions) {
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, question, nullptr));
        atoms.push_back(reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE});
    }
    return atoms;
}

xcb_window_t selectionOwner(xcb_connection_t* connection, xcb_atom_t selection) {
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace quorvane::xcbrequests
