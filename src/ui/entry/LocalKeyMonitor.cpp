// SPDX-License-Identifier: MIT
#include "LocalKeyMonitor.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace quorvane {

LocalKeyMonitor::LocalKeyMonitor(Handler handler) : m_handler(std::move(handler)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool LocalKeyMonitor::eventFilter(QObject* /*watched*/, QEvent* event) {
    return event->type() == QEvent::KeyPress &&
           m_handler(*static_cast<QKeyEvent*>(event)) == Verdict::Swallow;
}

} // namespace quorvane
