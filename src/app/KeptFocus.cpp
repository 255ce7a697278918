// SPDX-License-Identifier: MIT
#include "KeptFocus.h"

#include <QEvent>

namespace quorvane {

KeptFocus::KeptFocus(QWidget* window) : QObject(window), m_window(window) {
    window->installEventFilter(this);
}

bool KeptFocus::eventFilter(QObject* watched, QEvent* event) {
    // Minimised by the window manager, a window is hidden and shown as well.
    if (event->type() == QEvent::Hide)
        m_focused = m_window->focusWidget();
    else if (event->type() == QEvent::Show)
        giveBack();
    return QObject::eventFilter(watched, event);
}

void KeptFocus::giveBack() {
    const bool canHaveIt = m_focused && m_window->isAncestorOf(m_focused) &&
                           m_focused->isVisibleTo(m_window) && m_focused->isEnabled();
    if (canHaveIt && m_focused != m_window->focusWidget())
        m_focused->setFocus(Qt::ActiveWindowFocusReason);
    m_focused = nullptr;
}

} // namespace quorvane
