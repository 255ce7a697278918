// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <xcb/xcb.h>

#include <string_view>
#include <vector>

/// Requests that go out on either connection of this process, Qt's or our own.
namespace quorvane::xcbrequests {

/// Whether the window was made by this connection.
[[nodiscard]] bool owns(xcb_connection_t* connection, xcb_window_t window);

/// Returns when the server has carried out all requests so far.
void waitForServer(xcb_connection_t* connection);

/// XCB_ATOM_NONE if the server does not answer.
[[nodiscard]] xcb_atom_t atom(xcb_connection_t* connection, std::string_view name);

/// All in one round trip; XCB_ATOM_NONE for those that the server does not answer.
[[nodiscard]] std::vector<xcb_atom_t> atoms(xcb_connection_t* connection, const QStringList& names);

/// The window that owns the selection, of any program; XCB_WINDOW_NONE for none.
[[nodiscard]] xcb_window_t selectionOwner(xcb_connection_t* connection, xcb_atom_t selection);

} // namespace quorvane::xcbrequests
