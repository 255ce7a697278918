// SPDX-License-Identifier: MIT
#include "ComposedInput.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

#include <array>

namespace quorvane {

namespace {

/// Where the input method puts its own window.
constexpr std::array places{
    Qt::ImCursorRectangle, Qt::ImAnchorRectangle, Qt::ImInputItemClipRectangle};

} // namespace

ComposedInput::ComposedInput(QLineEdit& line) : m_line(line) {
}

bool ComposedInput::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::InputMethod:
        pass(*static_cast<QInputMethodEvent*>(event));
        return true;
    case QEvent::InputMethodQuery:
        answer(*static_cast<QInputMethodQueryEvent*>(event), *static_cast<QWidget*>(watched));
        return true;
    default:
        return false;
    }
}

void ComposedInput::pass(QInputMethodEvent& event) {
    const bool bringsText = !event.commitString().isEmpty() || !event.preeditString().isEmpty();
    const bool isCommit = !event.commitString().isEmpty() && event.preeditString().isEmpty();
    if (bringsText)
        Q_EMIT begun();
    QCoreApplication::sendEvent(&m_line, &event);
    // A change of the focus would end what is still being composed.
    if (isCommit)
        Q_EMIT committed();
}

void ComposedInput::answer(QInputMethodQueryEvent& event, const QWidget& focused) {
    QCoreApplication::sendEvent(&m_line, &event);
    const auto offset = focused.mapFromGlobal(m_line.mapToGlobal(QPoint()));
    for (const auto place : places) {
        if (event.queries().testFlag(place))
            event.setValue(place, event.value(place).toRectF().translated(offset));
    }
}

} // namespace quorvane
