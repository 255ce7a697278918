// SPDX-License-Identifier: MIT
#include <controls/WidgetRole.h>

#include <QAccessibleWidget>
#include <QWidget>

namespace quorvane {

namespace {

constexpr auto roleProperty = "quorvane.role";

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    if (object == nullptr || !object->isWidgetType())
        return nullptr;
    const auto role = object->property(roleProperty);
    return role.isValid() ? new QAccessibleWidget(
                                static_cast<QWidget*>(object),
                                static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

} // namespace

void setWidgetRole(QWidget& widget, QAccessible::Role role) {
    // A factory that is already in the list is not added again.
    QAccessible::installFactory(makeInterface);
    widget.setProperty(roleProperty, static_cast<int>(role));
}

} // namespace quorvane
