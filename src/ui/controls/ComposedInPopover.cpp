// SPDX-License-Identifier: MIT
#include "ComposedInPopover.h"

#include <QApplication>
#include <QEvent>
#include <QInputMethod>

namespace quorvane {

namespace {

/// Whether anything is to be composed is asked again only then.
void tellInputMethod() {
    QGuiApplication::inputMethod()->update(Qt::ImEnabled);
}

} // namespace

ComposedInPopover::ComposedInPopover(QWidget& popover) : m_popover(popover) {
    connect(qApp, &QGuiApplication::focusObjectChanged, this, &ComposedInPopover::follow);
    connect(qApp, &QApplication::focusChanged, this, &tellInputMethod);
    follow(QGuiApplication::focusObject());
}

ComposedInPopover::~ComposedInPopover() {
    leave();
}

bool ComposedInPopover::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool isInput =
        event->type() == QEvent::InputMethod || event->type() == QEvent::InputMethodQuery;
    auto* focused = m_popover.focusWidget();
    if (!isInput || focused == nullptr || QApplication::activePopupWidget() != &m_popover)
        return false;
    QCoreApplication::sendEvent(focused, event);
    return true;
}

void ComposedInPopover::follow(QObject* focusObject) {
    leave();
    const auto* widget = qobject_cast<QWidget*>(focusObject);
    if (widget == nullptr || widget->window() == &m_popover)
        return;
    m_below = focusObject;
    m_below->installEventFilter(this);
    tellInputMethod();
}

void ComposedInPopover::leave() {
    if (!m_below)
        return;
    m_below->removeEventFilter(this);
    m_below.clear();
    tellInputMethod();
}

} // namespace quorvane
