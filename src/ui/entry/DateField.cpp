// SPDX-License-Identifier: MIT
#include <entry/DateField.h>
#include <time/DateText.h>

#include <utility>

namespace quorvane {

DateField::DateField(
    Binding<Instant> date, MinDate minDate, const EntryDependencies& dependencies, QWidget* parent)
    : FieldChip(Symbol::Calendar, dependencies.popoverEffects, parent),
      m_date(std::move(date)),
      m_minDate(std::move(minDate)),
      m_dependencies(dependencies) {
    refresh();
}

void DateField::refresh() {
    showText(
        dateChipText(m_date.get(), m_dependencies.currentZone.current(), m_dependencies.locale));
    if (m_calendar)
        m_calendar->refresh();
}

QWidget* DateField::makeContent() {
    const auto set = [this](Instant date) {
        m_date.set(date);
        refresh();
    };
    m_calendar = new CalendarPicker({m_date.get, set}, m_minDate, m_dependencies);
    return m_calendar;
}

} // namespace quorvane
