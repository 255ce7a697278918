// SPDX-License-Identifier: MIT
#include "CalendarDayAccessible.h"

namespace quorvane {

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* day = qobject_cast<CalendarDay*>(object);
    return day != nullptr ? new CalendarDayAccessible(*day) : nullptr;
}

} // namespace

CalendarDayAccessible::CalendarDayAccessible(CalendarDay& day)
    : QAccessibleWidget(&day, QAccessible::Button),
      m_day(day) {
}

void CalendarDayAccessible::install() {
    // The last one installed is asked first, so that this one comes before that of all pressable
    // controls.
    QAccessible::installFactory(makeInterface);
}

QAccessible::State CalendarDayAccessible::state() const {
    auto state = QAccessibleWidget::state();
    const auto marks = m_day.marks();
    state.selectable = !marks.isRefused;
    state.selected = marks.isChosen;
    state.disabled = state.disabled || marks.isRefused;
    state.pressed = m_day.isDown();
    return state;
}

QStringList CalendarDayAccessible::actionNames() const {
    QStringList names;
    if (!state().disabled)
        names.append(pressAction());
    return names + QAccessibleWidget::actionNames();
}

void CalendarDayAccessible::doAction(const QString& name) {
    if (name == pressAction())
        m_day.click();
    else
        QAccessibleWidget::doAction(name);
}

} // namespace quorvane
