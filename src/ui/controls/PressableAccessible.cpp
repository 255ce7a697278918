// SPDX-License-Identifier: MIT
#include "PressableAccessible.h"

#include <controls/PressableControl.h>

namespace quorvane {

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* control = qobject_cast<PressableControl*>(object);
    return control != nullptr ? new PressableAccessible(*control) : nullptr;
}

} // namespace

PressableAccessible::PressableAccessible(PressableControl& control)
    : QAccessibleWidget(&control, control.accessibleRole()),
      m_control(control) {
}

void PressableAccessible::install() {
    // A factory that is already in the list is not added again.
    QAccessible::installFactory(makeInterface);
}

QAccessible::State PressableAccessible::state() const {
    auto state = QAccessibleWidget::state();
    state.checkable = m_control.isCheckable();
    state.checked = m_control.isChecked();
    state.pressed = m_control.isDown();
    if (const auto expanded = m_control.isExpanded()) {
        state.expandable = true;
        state.hasPopup = true;
        state.expanded = *expanded;
        state.collapsed = !*expanded;
    }
    return state;
}

int PressableAccessible::childCount() const {
    return QAccessibleWidget::childCount() + (surface() != nullptr ? 1 : 0);
}

QAccessibleInterface* PressableAccessible::child(int index) const {
    return index == QAccessibleWidget::childCount() ? surface() : QAccessibleWidget::child(index);
}

int PressableAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* opened = surface();
    return opened != nullptr && child != nullptr && child->object() == opened->object()
               ? QAccessibleWidget::childCount()
               : QAccessibleWidget::indexOfChild(child);
}

QString PressableAccessible::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Value)
        return m_control.accessibleValue();
    auto text = QAccessibleWidget::text(kind);
    if (!text.isEmpty() || kind != QAccessible::Name)
        return text;
    return m_control.text().isEmpty() ? m_control.toolTip() : m_control.text();
}

QStringList PressableAccessible::actionNames() const {
    QStringList names;
    if (m_control.isEnabled())
        names.append(pressName());
    return names + QAccessibleWidget::actionNames();
}

void PressableAccessible::doAction(const QString& name) {
    if (name == pressName())
        m_control.click();
    else
        QAccessibleWidget::doAction(name);
}

QStringList PressableAccessible::keyBindingsForAction(const QString& name) const {
    return name == pressName() ? QStringList{m_control.shortcut().toString()}
                               : QAccessibleWidget::keyBindingsForAction(name);
}

QAccessibleInterface* PressableAccessible::surface() const {
    auto* opened = m_control.openedSurface();
    return opened != nullptr ? QAccessible::queryAccessibleInterface(opened) : nullptr;
}

QString PressableAccessible::pressName() const {
    return m_control.isCheckable() ? toggleAction() : pressAction();
}

} // namespace quorvane
