// SPDX-License-Identifier: MIT
#include <support/WidgetSearch.h>

#include <algorithm>

namespace quorvane {

namespace {

// A combo box goes by its value on this platform and is named by its label.
bool isNamed(QAccessibleInterface& interface, const QString& name) {
    if (interface.text(QAccessible::Name) == name)
        return true;
    const auto labels = interface.relations(QAccessible::Label);
    return std::ranges::any_of(labels, [&](const auto& relation) {
        return relation.first->text(QAccessible::Name) == name;
    });
}

} // namespace

QWidget* widgetByRole(const QWidget& root, QAccessible::Role role, const QString& name) {
    for (auto* widget : root.findChildren<QWidget*>()) {
        auto* interface = QAccessible::queryAccessibleInterface(widget);
        if (interface != nullptr && interface->role() == role && isNamed(*interface, name))
            return widget;
    }
    return nullptr;
}

} // namespace quorvane
