// SPDX-License-Identifier: MIT
#include "VisibleTexts.h"

#include <QAccessible>
#include <QAction>
#include <QVariant>

namespace quorvane {

namespace {

void addAccessibleTexts(QStringList& texts, QAccessibleInterface* interface) {
    if (interface == nullptr || interface->state().invisible)
        return;
    for (const auto kind :
         {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
        texts.append(interface->text(kind));
    for (int index = 0; index < interface->childCount(); ++index)
        addAccessibleTexts(texts, interface->child(index));
}

void addTextsOfWidget(QStringList& texts, const QWidget& widget) {
    for (const char* property :
         {"text", "plainText", "title", "placeholderText", "toolTip", "informativeText"})
        texts.append(widget.property(property).toString());
    texts << widget.accessibleName() << widget.accessibleDescription();
    for (const auto* action : widget.actions())
        texts << action->text() << action->toolTip();
}

} // namespace

QStringList visibleTexts(const QWidget& window) {
    QStringList texts{window.windowTitle()};
    addTextsOfWidget(texts, window);
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible())
            addTextsOfWidget(texts, *widget);
    }
    addAccessibleTexts(texts, QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&window)));
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts;
}

} // namespace quorvane
