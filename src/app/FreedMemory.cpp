// SPDX-License-Identifier: MIT
#include "FreedMemory.h"

#include <QEvent>

#include <cstddef>
#include <malloc.h>

namespace quorvane {

namespace {

// Less than that is used again by the next show, which would have to ask the system for each page.
constexpr std::size_t worthGivingBack = std::size_t{4} << 20;

void giveBack() {
    if (mallinfo2().fordblks >= worthGivingBack)
        malloc_trim(0);
}

} // namespace

FreedMemory::FreedMemory(QWidget* window) : QObject(window) {
    window->installEventFilter(this);
}

bool FreedMemory::eventFilter(QObject* watched, QEvent* event) {
    // Once the desktop has been told, which nobody has to wait for.
    if (event->type() == QEvent::Hide)
        QMetaObject::invokeMethod(this, giveBack, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

} // namespace quorvane
