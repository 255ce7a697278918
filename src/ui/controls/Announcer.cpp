// SPDX-License-Identifier: MIT
#include "AnnouncerAccessible.h"

#include <controls/Announcer.h>

#include <QAccessible>
#include <QWidget>

namespace quorvane {

namespace {

QWidget& mainWindowOf(const QWidget& widget) {
    auto* window = widget.window();
    while (window->parentWidget() != nullptr)
        window = window->parentWidget()->window();
    return *window;
}

} // namespace

Announcer::Announcer(QWidget& window) : QObject(&window) {
    QAccessible::registerAccessibleInterface(new AnnouncerAccessible(*this, window));
}

Announcer& Announcer::of(const QWidget& widget) {
    auto& window = mainWindowOf(widget);
    auto* announcer = window.findChild<Announcer*>({}, Qt::FindDirectChildrenOnly);
    return announcer != nullptr ? *announcer : *new Announcer(window);
}

void Announcer::say(const QString& text) {
    m_text = text;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(this, text);
    QAccessible::updateAccessibility(&event);
#else
    // Whoever has read the name before keeps it until told otherwise.
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
#endif
    Q_EMIT said(text);
}

} // namespace quorvane
