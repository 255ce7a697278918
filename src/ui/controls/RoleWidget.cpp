// SPDX-License-Identifier: MIT
#include <controls/RoleWidget.h>

#include <QAccessibleWidget>

namespace quorvane {

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<RoleWidget*>(object);
    return widget != nullptr ? new QAccessibleWidget(widget, widget->accessibleRole()) : nullptr;
}

} // namespace

RoleWidget::RoleWidget(QAccessible::Role role, QWidget* parent) : QWidget(parent), m_role(role) {
    // A factory that is already in the list is not added again.
    QAccessible::installFactory(makeInterface);
}

} // namespace quorvane
