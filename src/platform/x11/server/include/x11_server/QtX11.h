// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <xcb/xcb.h>

class QScreen;

/// The other connection to the X server in this process: Qt's.
namespace quorvane::qtx11 {

/// Null where Qt draws on something else than X11.
[[nodiscard]] xcb_connection_t* connection();

/// Whether Qt made the window.
[[nodiscard]] bool owns(xcb_window_t window);

/// The screen that shows the pixel of the server; null where none does.
[[nodiscard]] QScreen* screenAt(QPoint pixel);

/// Returns when the server has carried out all that Qt asked of it. Requests on two connections are
/// in no order otherwise.
void waitForServer();

} // namespace quorvane::qtx11
