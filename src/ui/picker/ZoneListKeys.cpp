// SPDX-License-Identifier: MIT
#include <controls/SearchField.h>
#include <picker/ZoneList.h>
#include <picker/ZoneListKeys.h>

#include <QKeyEvent>

namespace quorvane {

ZoneListKeys::ZoneListKeys(SearchField& field, ZoneList& list) : QObject(&list), m_list(list) {
    field.installEventFilter(this);
    connect(&list, &ZoneList::typed, &field, [&field](QKeyEvent* event) {
        field.setFocus(Qt::OtherFocusReason);
        field.end(false);
        field.typeKey(event);
    });
}

bool ZoneListKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto* keyEvent = static_cast<QKeyEvent*>(event);
    if (keyEvent->modifiers() & ~Qt::KeypadModifier)
        return false;
    if (m_list.moveByKey(keyEvent->key()))
        return true;
    if (keyEvent->key() != Qt::Key_Return && keyEvent->key() != Qt::Key_Enter)
        return false;
    Q_EMIT m_list.chosen(m_list.currentIndex());
    return true;
}

} // namespace quorvane
