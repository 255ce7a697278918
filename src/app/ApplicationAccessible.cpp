// SPDX-License-Identifier: MIT
#include "ApplicationAccessible.h"

#include <QApplication>
#include <QWidget>

namespace quorvane {

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    return qobject_cast<QApplication*>(object) != nullptr ? new ApplicationAccessible : nullptr;
}

} // namespace

void ApplicationAccessible::install() {
    QAccessible::installFactory(makeInterface);
}

int ApplicationAccessible::childCount() const {
    return QAccessibleApplication::childCount() + static_cast<int>(popovers().size());
}

QAccessibleInterface* ApplicationAccessible::child(int index) const {
    const int windows = QAccessibleApplication::childCount();
    const auto shown = popovers();
    if (index < windows || index - windows >= shown.size())
        return QAccessibleApplication::child(index);
    return QAccessible::queryAccessibleInterface(shown[index - windows]);
}

int ApplicationAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto place = popovers().indexOf(qobject_cast<QWidget*>(child->object()));
    return place < 0 ? QAccessibleApplication::indexOfChild(child)
                     : QAccessibleApplication::childCount() + static_cast<int>(place);
}

QList<QWidget*> ApplicationAccessible::popovers() {
    QList<QWidget*> popovers;
    for (auto* widget : QApplication::topLevelWidgets()) {
        // A popup that a control has opened is a child of that control.
        if (widget->windowType() == Qt::Popup && widget->isVisible() &&
            widget->parentWidget() == nullptr)
            popovers.append(widget);
    }
    return popovers;
}

} // namespace quorvane
