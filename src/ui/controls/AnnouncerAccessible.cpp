// SPDX-License-Identifier: MIT
#include "AnnouncerAccessible.h"

#include <controls/Announcer.h>

#include <QWidget>

namespace quorvane {

AnnouncerAccessible::AnnouncerAccessible(Announcer& announcer, QWidget& window)
    : QAccessibleObject(&announcer),
      m_announcer(announcer),
      m_window(window) {
}

QAccessibleInterface* AnnouncerAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(&m_window);
}

QAccessibleInterface* AnnouncerAccessible::child(int /*index*/) const {
    return nullptr;
}

int AnnouncerAccessible::indexOfChild(const QAccessibleInterface* /*child*/) const {
    return -1;
}

QString AnnouncerAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? m_announcer.text() : QString();
}

} // namespace quorvane
