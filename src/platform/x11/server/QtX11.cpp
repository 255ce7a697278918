// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QScreen>

#include <x11_server/QtX11.h>
#include <x11_server/XcbReply.h>

namespace quorvane::qtx11 {

xcb_connection_t* connection() {
    const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (application == nullptr)
        return nullptr;
    const auto* x11 = application->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

bool owns(xcb_window_t window) {
    auto* qt = connection();
    if (qt == nullptr)
        return false;
    const auto* setup = xcb_get_setup(qt);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

QScreen* screenAt(QPoint pixel) {
    for (auto* screen : QGuiApplication::screens()) {
        // A scaled screen keeps its origin in pixels; only its size is in points.
        const auto points = screen->geometry();
        const QRect pixels(points.topLeft(), points.size() * screen->devicePixelRatio());
        if (pixels.contains(pixel))
            return screen;
    }
    return nullptr;
}

void waitForServer() {
    auto* qt = connection();
    if (qt == nullptr)
        return;
    const XcbReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(qt, xcb_get_input_focus(qt), nullptr));
}

} // namespace quorvane::qtx11
