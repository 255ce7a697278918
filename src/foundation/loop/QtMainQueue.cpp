// SPDX-License-Identifier: MIT
#include <loop/QtMainQueue.h>

#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace quorvane {

void QtMainQueue::async(Task task) {
    QMetaObject::invokeMethod(&m_context, std::move(task), Qt::QueuedConnection);
}

Deadline QtMainQueue::after(Seconds delay, Task task) {
    auto* timer = new QTimer(&m_context);
    timer->setSingleShot(true);
    // Coarse timers may be late by a twentieth of their interval.
    timer->setTimerType(Qt::PreciseTimer);
    // Deleted later, not at once: the task may drop its own handle.
    QObject::connect(timer, &QTimer::timeout, timer, [timer, task = std::move(task)] {
        timer->deleteLater();
        task();
    });
    timer->start(std::max(
        std::chrono::milliseconds(0), std::chrono::round<std::chrono::milliseconds>(delay)));
    return Deadline([pending = QPointer(timer)] {
        if (!pending)
            return;
        pending->stop();
        pending->deleteLater();
    });
}

} // namespace quorvane
