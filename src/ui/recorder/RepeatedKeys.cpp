// SPDX-License-Identifier: MIT
#include "RepeatedKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace quorvane {

void RepeatedKeys::swallowRepeatsOf(const QKeyEvent& press) {
    m_scanCode = press.nativeScanCode();
    QCoreApplication::instance()->installEventFilter(this);
}

bool RepeatedKeys::eventFilter(QObject* /*watched*/, QEvent* event) {
    const auto type = event->type();
    const bool isPress = type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
    if (!isPress && type != QEvent::KeyRelease)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool isSame = key.nativeScanCode() == m_scanCode;
    if (isSame && key.isAutoRepeat()) {
        event->accept();
        return true;
    }
    // The key's own release, or a new press: only one key repeats at a time.
    if (isSame || isPress)
        QCoreApplication::instance()->removeEventFilter(this);
    return false;
}

} // namespace quorvane
