// SPDX-License-Identifier: MIT
#include <loop/QtMainQueue.h>

#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

namespace quorvane {

namespace {

// ThreadSanitizer does not see into Qt, whose queue of events has each post happen before its
// delivery.
#if defined(__SANITIZE_THREAD__)
void notePost(QObject& receiver) {
    __tsan_release(&receiver);
}

void noteDelivery(QObject& receiver) {
    __tsan_acquire(&receiver);
}
#else
void notePost(QObject& /*receiver*/) {
}

void noteDelivery(QObject& /*receiver*/) {
}
#endif

} // namespace

void QtMainQueue::async(Task task) {
    notePost(m_context);
    QMetaObject::invokeMethod(
        &m_context,
        [this, task = std::move(task)] {
            noteDelivery(m_context);
            task();
        },
        Qt::QueuedConnection);
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
