// SPDX-License-Identifier: MIT
#include <x11_server/QtX11.h>
#include <x11_windows/X11UserTime.h>

#include <QCoreApplication>
#include <QInputEvent>

#include <utility>

namespace quorvane {

X11UserTime::X11UserTime(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {
    // Only there are the times of Qt's events the X server's.
    if (qtx11::connection() != nullptr)
        QCoreApplication::instance()->installEventFilter(this);
}

bool X11UserTime::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress =
        event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
    if (isPress && event->spontaneous() && watched->isWindowType()) {
        const auto time = static_cast<const QInputEvent*>(event)->timestamp();
        m_connection->noteUserTime(static_cast<xcb_timestamp_t>(time));
    }
    return false;
}

} // namespace quorvane
