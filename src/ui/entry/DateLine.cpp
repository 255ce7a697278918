// SPDX-License-Identifier: MIT
#include "DateLine.h"

#include <QFocusEvent>
#include <QSignalBlocker>

#include <utility>

namespace quorvane {

DateLine::DateLine(PasteReader reader, QWidget* parent) : TextField(std::move(reader), parent) {
    setAccessibleName(tr("Type a date"));
    hide();
}

void DateLine::open() {
    if (std::exchange(m_isReplaced, false))
        clear();
    setRefusal({});
    show();
}

void DateLine::close() {
    m_isReplaced = false;
    clear();
    setRefusal({});
    hide();
}

void DateLine::replaceRefused(const QString& valid, const QString& reason) {
    const QSignalBlocker blocker(this);
    setText(valid);
    setRefusal(reason);
    m_isReplaced = true;
}

void DateLine::focusInEvent(QFocusEvent* event) {
    TextField::focusInEvent(event);
    if (m_isReplaced)
        selectAll();
}

void DateLine::focusOutEvent(QFocusEvent* event) {
    TextField::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        Q_EMIT left();
}

} // namespace quorvane
