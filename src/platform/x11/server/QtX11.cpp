// SPDX-License-Identifier: MIT
#include <x11_server/QtX11.h>
#include <x11_server/XcbRequests.h>

#include <QGuiApplication>
#include <QScreen>

#include <cstdlib>

namespace quorvane::qtx11 {

xcb_connection_t* connection() {
    const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (application == nullptr)
        return nullptr;
    const auto* x11 = application->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

int screenNumber() {
    int screen = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return screen;
}

const xcb_generic_event_t* eventIn(const QByteArray& kind, const void* message) {
    return kind == "xcb_generic_event_t" ? static_cast<const xcb_generic_event_t*>(message)
                                         : nullptr;
}

bool owns(xcb_window_t window) {
    auto* qt = connection();
    return qt != nullptr && xcbrequests::owns(qt, window);
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
    if (auto* qt = connection())
        xcbrequests::waitForServer(qt);
}

} // namespace quorvane::qtx11
