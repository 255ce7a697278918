// SPDX-License-Identifier: MIT
#include <support/WaitUntil.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace quorvane {

bool waitUntil(const std::function<bool()>& condition, std::chrono::seconds limit) {
    using namespace std::chrono_literals;
    const QDeadlineTimer deadline(limit);
    // Conditions on other programs' state come true without an event of ours.
    QTimer wakeUp;
    wakeUp.start(2ms);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace quorvane
