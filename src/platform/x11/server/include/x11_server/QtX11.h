// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QPoint>
#include <xcb/xcb.h>

class QScreen;

/// The other connection to the X server in this process: Qt's.
namespace quorvane::qtx11 {

/// Null where Qt draws on something else than X11.
[[nodiscard]] xcb_connection_t* connection();

/// The screen that $DISPLAY names, among those of the server.
[[nodiscard]] int screenNumber();

/// What a native event filter was given, if it is an event of the X server; else null.
[[nodiscard]] const xcb_generic_event_t* eventIn(const QByteArray& kind, const void* message);

/// Whether Qt made the window.
[[nodiscard]] bool owns(xcb_window_t window);

/// The screen that shows the pixel of the server; null where none does.
[[nodiscard]] QScreen* screenAt(QPoint pixel);

/// Returns when the server has carried out all that Qt asked of it. Without this, requests
/// on two connections are carried out in any order.
void waitForServer();

} // namespace quorvane::qtx11
